// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QDateTime>

#include "ClientFixture.h"

#include "Support/TempFolder.h"
#include "SemanticVersion.h"
#include "Update/VersionFeedUpdateService.h"
#include <filesystem>
#include <list>

TEST(FSemanticVersionTest, OrdersByPrecedence)
{
	const TCHAR* const Rising[] = {TEXT("0.0.0-0"), TEXT("0.9.10"), TEXT("1.0.0-1"), TEXT("1.0.0-9"), TEXT("1.0.0-10"),
		TEXT("1.0.0-99999999999999999999"), TEXT("1.0.0--"), TEXT("1.0.0-ALPHA"), TEXT("1.0.0-alpha"), TEXT("1.0.0-alpha.1"),
		TEXT("1.0.0-alpha.beta"), TEXT("1.0.0-beta"), TEXT("1.0.0-beta.2"), TEXT("1.0.0-beta.11"), TEXT("1.0.0-rc.1"), TEXT("1.0.0"),
		TEXT("1.0.1"), TEXT("1.2.0-x-y.z"), TEXT("1.10.0"), TEXT("2.0.0"), TEXT("99999999999999999999.0.0")};
	for (std::size_t A = 0; A < std::size(Rising); ++A)
	{
		for (std::size_t B = 0; B < std::size(Rising); ++B)
		{
			const auto Left = FSemanticVersion::Parse(FString(Rising[A]) + TEXT("+build.007"));
			const auto Right = FSemanticVersion::Parse(Rising[B]);
			ASSERT_TRUE(Left && Right) << FString(Rising[A]) << FString(Rising[B]);
			EXPECT_EQ(Left->IsNewerThan(*Right), A > B) << FString(Rising[A]) << FString(Rising[B]);
		}
	}
	for (const TCHAR* const Bad : {TEXT(""), TEXT("1"), TEXT("1.2"), TEXT("1.2.3.4"), TEXT("v1.2.3"), TEXT("01.2.3"), TEXT("1.2.3-01"),
			 TEXT("1.2.3-"), TEXT("1.2.3-a..b"), TEXT("1.2.3+"), TEXT("1.2.3+a+b"), TEXT("1.2.3-ä"), TEXT(" 1.2.3"), TEXT("-1.2.3")})
	{
		EXPECT_FALSE(FSemanticVersion::Parse(Bad)) << FString(Bad);
	}
}

namespace
{
class FUpdateTest : public testing::Test
{
protected:
	// A program with version 1.2.3 and a feed below this path starts, and a panel is built.
	UVersionFeedUpdateService& Check(const TCHAR* Path = TEXT(""))
	{
		UVersionFeedUpdateService& Service = Services.emplace_back().Make();
		Service.Initialize({GetFeed() + Path, Folder.GetPath(FVersionFeedNote::FileName)}, TEXT("1.2.3"));
		Service.OnLatestVersionReceived.AddLambda([this](const FString& Version) { Told += Version + TEXT(";"); });
		Service.CheckForUpdates();
		EXPECT_TEXT(Told, TEXT(""));
		return Service;
	}

	FString GetFeed() const { return FString(Server.GetAddress().constData()); }

	// What is told once this many requests have come to their end.
	FString GetTold(int32 NumRequests)
	{
		EXPECT_TRUE(PumpUntil(
			[&]
			{
				const QList<FExchange>& Exchanges = Server.GetExchanges();
				const auto IsOver = [](const FExchange& Exchange)
				{
					return Exchange.Socket->state() == QAbstractSocket::UnconnectedState;
				};
				return Exchanges.size() == NumRequests && std::all_of(Exchanges.begin(), Exchanges.end(), IsOver);
			}));
		FTSTicker::GetCoreTicker().Tick(0.0f);
		FTSTicker::GetCoreTicker().Tick(0.0f);
		const FString All = Told;
		Told.Reset();
		return All;
	}

	FTempFolder Folder;
	FScriptedServer Server;
	FString Told;
	std::list<TStarted<UVersionFeedUpdateService>> Services;
};
} // namespace

TEST_F(FUpdateTest, AsksOnceADayAndTellsOfANewerVersionAtEachPanel)
{
	Server.Then(ReplyJson("200 OK", R"({"version":"1.3.0-rc.1","download_url":"http://elsewhere/"})"));
	UVersionFeedUpdateService& First = Check();
	First.CheckForUpdates();
	EXPECT_TEXT(GetTold(1), TEXT("1.3.0-rc.1;"));
	First.CheckForUpdates();
	First.CheckForUpdates();
	EXPECT_TEXT(GetTold(1), TEXT("1.3.0-rc.1;"));
	Check();
	EXPECT_TEXT(GetTold(1), TEXT("1.3.0-rc.1;"));
	EXPECT_EQ(Server.GetExchanges()[0].Path, "/v1/version");
	EXPECT_FALSE(Server.GetExchanges()[0].Headers.contains("authorization"));

	// What another feed announces is asked there.
	Server.Then(ReplyJson("200 OK", R"({"version":"1.2.3+later"})"));
	Check(TEXT("/other"));
	EXPECT_TEXT(GetTold(2), TEXT(""));
}

TEST_F(FUpdateTest, AsksWhereTheNoteIsOfNoUse)
{
	const int64 Now = QDateTime::currentSecsSinceEpoch();
	const auto MakeNote = [&](const FString& AskedAt)
	{
		return FString(TEXT("{\"feed\":\"")) + GetFeed() + FString(TEXT("\",\"version\":\"9.0.0\",\"askedAt\":")) + AskedAt + TEXT("}");
	};
	const auto MakeTime = [&](int64 Time)
	{
		return MakeNote(FString(std::to_string(Time).c_str()));
	};
	int32 NumRequests = 0;
	for (const FString& Note : {FString(TEXT("{\"feed\":")), FString(TEXT("[]")), MakeTime(Now + 3600), MakeTime(Now - 90000),
			 MakeTime(INT64_MIN), MakeNote(TEXT("18446744073709551615")), MakeNote(TEXT("\"now\"")), MakeNote(TEXT("1e9"))})
	{
		Folder.Write(FVersionFeedNote::FileName, TCHAR_TO_UTF8(*Note));
		Server.Then(ReplyJson("200 OK", R"({"version":"1.2.2"})"));
		Check();
		EXPECT_TEXT(GetTold(++NumRequests), TEXT("")) << Note;
	}
	Folder.Write(FVersionFeedNote::FileName, TCHAR_TO_UTF8(*MakeTime(Now - 3600)));
	Check();
	EXPECT_TEXT(GetTold(NumRequests), TEXT("9.0.0;"));
}

TEST_F(FUpdateTest, AFailureIsSilentAndNotRepeated)
{
	const std::pair<QByteArray, QByteArray> Replies[] = {{"500 Internal Server Error", "{}"}, {"200 OK", "<html>"}, {"200 OK", "{}"},
		{"200 OK", R"({"version":7})"}, {"200 OK", R"({"version":"2"})"},
		{"200 OK", "{\"version\":\"9.0.0-" + QByteArray(300, 'a') + "\"}"}};
	int32 NumRequests = 0;
	for (const auto& [Status, Body] : Replies)
	{
		const FLogCapture Log;
		Server.Then(ReplyJson(Status, Body));
		const FString Path = TEXT("/") + FString::FromInt(++NumRequests);
		UVersionFeedUpdateService& Service = Check(*Path);
		EXPECT_TEXT(GetTold(NumRequests), TEXT(""));
		Service.CheckForUpdates();
		Check(*Path);
		EXPECT_TEXT(GetTold(NumRequests), TEXT(""));
		EXPECT_EQ(Log.GetMessages().Num(), 1);
		EXPECT_EQ(Log.CountAtLevel(TEXT("LogVorel"), ELogVerbosity::Log), 1);
	}
	// Where the last of them was asked again, this is one too many.
	Server.Then(ReplyJson("200 OK", R"({"version":"1.2.2"})"));
	Check(TEXT("/last"));
	EXPECT_TEXT(GetTold(NumRequests + 1), TEXT(""));
	EXPECT_EQ(
		std::filesystem::status(TCHAR_TO_UTF8(Folder.GetPath(FVersionFeedNote::FileName))).permissions(), std::filesystem::perms(0600));
}
