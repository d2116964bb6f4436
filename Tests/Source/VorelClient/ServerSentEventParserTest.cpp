// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Assistant/ServerSentEventParser.h"

#include "Support/Printers.h"
#include <gtest/gtest.h>

namespace
{
// "type:data|type:data"; a line feed in the data shows as "/".
FString Show(const TArray<FServerSentEvent>& Events)
{
	TArray<FString> Shown;
	for (const FServerSentEvent& Event : Events)
	{
		Shown.Add(Event.Type + TEXT(":") + Event.Data.Replace(TEXT("\n"), TEXT("/")));
	}
	return FString::Join(Shown, TEXT("|"));
}

FString ParseInParts(std::string_view Bytes, std::initializer_list<std::size_t> Cuts)
{
	FServerSentEventParser Parser;
	TArray<FServerSentEvent> Events;
	std::size_t Start = 0;
	for (const std::size_t Cut : Cuts)
	{
		EXPECT_TRUE(Parser.Feed(Bytes.substr(Start, Cut - Start), Events));
		Start = Cut;
	}
	EXPECT_TRUE(Parser.Feed(Bytes.substr(Start), Events));
	return Show(Events);
}
} // namespace

TEST(FServerSentEventParserTest, FollowsTheGrammar)
{
	const std::pair<std::string_view, const TCHAR*> Rows[] = {
		{"data: a\n\n", TEXT(":a")},
		{"data:a\r\n\r\n", TEXT(":a")},
		{"data: a\r\rdata: b\r\r", TEXT(":a|:b")},
		{"data:  two blanks\n\n", TEXT(": two blanks")},
		{"data: a\ndata: b\n\n", TEXT(":a/b")},
		{"data\n\n", TEXT(":")},
		{"data:\ndata:\n\n", TEXT(":/")},
		{"event: error\ndata: x\n\ndata: y\n\n", TEXT("error:x|:y")},
		{"event: lost\n\ndata: y\n\n", TEXT(":y")},
		{": comment\n\n:\n\ndata: a\n\n", TEXT(":a")},
		{"id: 7\nretry: 10\nunknown: z\nDATA: no\ndata: a\n\n", TEXT(":a")},
		{"\xEF\xBB\xBF"
		 "data: a\n\n\xEF\xBB\xBF"
		 "data: b\n\n",
			TEXT(":a")},
		{"\n\n\ndata: a\n\n\n", TEXT(":a")},
		{"data: a\nda", TEXT("")},
		{"data: a: b\n\n", TEXT(":a: b")},
		{"data: \xC3\xA9\xF0\x9F\x98\x80\xFF\n\n", TEXT(":é😀\xFFFD")},
	};
	for (const auto& [Bytes, Expected] : Rows)
	{
		EXPECT_EQ(ParseInParts(Bytes, {}), Expected) << Bytes;
	}
}

TEST(FServerSentEventParserTest, GivesTheSameEventsWhereverTheBytesAreCut)
{
	constexpr std::string_view Bytes =
		"\xEF\xBB\xBF: hi\r\ndata: \xC3\xA9\xF0\x9F\x98\x80\r\ndata:b\r\n\r\nevent: x\rdata\r\revent:y\ndata: \xE4\xBB\x8A\n\n";
	const FString Whole = ParseInParts(Bytes, {});
	EXPECT_EQ(Whole, TEXT(":é😀/b|x:|y:今"));
	for (std::size_t First = 0; First <= Bytes.size(); ++First)
	{
		for (std::size_t Second = First; Second <= Bytes.size(); ++Second)
		{
			ASSERT_EQ(ParseInParts(Bytes, {First, Second}), Whole) << First << " " << Second;
		}
	}
}
