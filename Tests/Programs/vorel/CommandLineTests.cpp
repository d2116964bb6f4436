// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Options/CommandLine.h"
#include "Support/Printers.h"

namespace
{
FCommandLine Parse(const TArray<FString>& Arguments)
{
	FString Error;
	const TOptional<FCommandLine> Line = FCommandLine::Parse(Arguments, Error);
	EXPECT_TRUE(Line.IsSet()) << Error;
	return Line.Get(FCommandLine());
}
} // namespace

TEST(CommandLine, TakesValuesBehindABlankOrAnEqualsSign)
{
	const FCommandLine Line = Parse({TEXT("--offscreen"), TEXT("--size"), TEXT("640x480"), TEXT("--scale=1.5"), TEXT("--data-dir"),
		TEXT("a=b"), TEXT("--assistant=https://host/v1?a=b"), TEXT("--model"), TEXT("--odd"), TEXT("--service=http://[::1]:80/"),
		TEXT("--issuer=https://host/a/"), TEXT("--client-id=b"), TEXT("--play=x.play")});
	EXPECT_TRUE(Line.bOffscreen);
	EXPECT_EQ(Line.Size, (FContentSize{640, 480}));
	EXPECT_EQ(*Line.Scale, 1.5);
	EXPECT_TEXT(Line.DataDir, TEXT("a=b"));
	EXPECT_TEXT(Line.AssistantUrl, TEXT("https://host/v1?a=b"));
	EXPECT_TEXT(Line.Model, TEXT("--odd"));
	EXPECT_TEXT(Line.ServiceUrl, TEXT("http://[::1]:80"));
	EXPECT_TEXT(Line.Issuer + Line.ClientId, TEXT("https://host/a/b"));
	EXPECT_TEXT(Line.PlayFile, TEXT("x.play"));
	EXPECT_EQ(*Parse({TEXT("--daily-credits"), TEXT("0")}).DailyCredits, 0);
	EXPECT_TEXT(Parse({TEXT("--service=HTTPS://Host:8443/")}).ServiceUrl, TEXT("https://host:8443"));
}

TEST(CommandLine, TakesNothingForAnOptionBehindTwoDashes)
{
	const FCommandLine Line = Parse({TEXT("conversations"), TEXT("--model=a"), TEXT("--"), TEXT("show"), TEXT("--model")});
	EXPECT_EQ(Line.Command, (TArray<FString>{TEXT("show"), TEXT("--model")}));
}

TEST(CommandLine, SaysWhatIsWrong)
{
	const TCHAR* const Size = TEXT("--size needs a width and a height from 1 to 8192, like 1000x800");
	const TCHAR* const Scale = TEXT("--scale needs a number from 0.25 to 8");
	const TCHAR* const Url = TEXT("--assistant needs an address that begins with http:// or https://");
	const TCHAR* const Service = TEXT("--service needs https:// and a host, or http:// and this machine, with nothing behind it");
	const TCHAR* const Issuer =
		TEXT("--issuer needs an address that begins with https://, or with http:// on this machine, without a query");
	const TCHAR* const Credits = TEXT("--daily-credits needs a whole number from 0 to 1000000");
	const std::pair<TArray<FString>, const TCHAR*> Lines[] = {
		{{TEXT("--ofscreen")}, TEXT("there is no option --ofscreen, see --help")},
		{{TEXT("file.play")}, TEXT("there is no option file.play, see --help")},
		{{TEXT("--offscreen=yes")}, TEXT("--offscreen takes no value")},
		{{TEXT("--size=1000")}, Size},
		{{TEXT("--size=0x800")}, Size},
		{{TEXT("--size=1000x8193")}, Size},
		{{TEXT("--size=99999999999x1")}, Size},
		{{TEXT("--scale=0")}, Scale},
		{{TEXT("--scale=1,5")}, Scale},
		{{TEXT("--scale=nan")}, Scale},
		{{TEXT("--assistant=ftp://host")}, Url},
		{{TEXT("--service=http://host")}, Service},
		{{TEXT("--service=http://localhost.host")}, Service},
		{{TEXT("--service=https://host/v1")}, Service},
		{{TEXT("--service=https://name@host")}, Service},
		{{TEXT("--service=https://")}, Service},
		{{TEXT("--issuer=http://10.0.0.1")}, Issuer},
		{{TEXT("--issuer=https://host?a=b")}, Issuer},
		{{TEXT("--issuer=https://host")}, TEXT("--issuer needs --client-id too")},
		{{TEXT("--client-id=a")}, TEXT("--client-id needs --issuer too")},
		{{TEXT("--daily-credits=-1")}, Credits},
		{{TEXT("--daily-credits=1000001")}, Credits},
		{{TEXT("--daily-credits=1"), TEXT("--service=https://host")},
			TEXT("--daily-credits is for the program's own service, which --service replaces")},
		{{TEXT("--model=")}, TEXT("--model needs a name")},
		{{TEXT("--data-dir=")}, TEXT("--data-dir needs a folder")},
		{{TEXT("--play")}, TEXT("--play needs a file")},
		{{TEXT("--format=xml")}, TEXT("--format needs md or json")},
		{{TEXT("conversations")}, TEXT("conversations needs list, show, export, import or delete, see --help")},
		{{TEXT("conversations"), TEXT("show")}, TEXT("conversations show takes ID, see --help")},
		{{TEXT("conversations"), TEXT("list"), TEXT("all")}, TEXT("conversations list takes nothing, see --help")},
	};
	for (const auto& [Arguments, Problem] : Lines)
	{
		FString Error;
		EXPECT_FALSE(FCommandLine::Parse(Arguments, Error).IsSet());
		EXPECT_TEXT(Error, Problem);
	}
}
