// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/vorel/VorelProgramTest.h"

namespace
{
constexpr const char* Colours = R"({
  "id": "c1",
  "title": "What colour?",
  "mode": "Ask",
  "created": "2026-01-31T18:30:00.123Z",
  "messages": [
    {
      "role": "user",
      "text": "What\n\"colour\"? 今😀"
    },
    {
      "role": "assistant",
      "text": "**Blue**"
    },
    {
      "role": "system",
      "text": ""
    }
  ]
}
)";

class ConversationCommand : public FVorelProgramTest
{
protected:
	FProgramOutcome RunWords(const char* Words) { return Run(QString::fromUtf8(Words).split(u' ')); }

	// What it prints where it succeeds.
	FString Print(const char* Words)
	{
		const FProgramOutcome Outcome = RunWords(Words);
		EXPECT_EQ(Outcome.ExitStatus, 0) << Words;
		EXPECT_TEXT(Outcome.Errors, TEXT(""));
		return Outcome.Output;
	}

	void ExpectRefused(const char* Words, const FString& Line)
	{
		const FProgramOutcome Outcome = RunWords(Words);
		EXPECT_EQ(Outcome.ExitStatus, 1) << Words;
		EXPECT_TEXT(Outcome.Errors, TEXT("vorel: ") + Line + TEXT("\n"));
		EXPECT_TEXT(Outcome.Output, TEXT(""));
	}
};
} // namespace

TEST_F(ConversationCommand, ImportsListsShowsExportsAndDeletes)
{
	EXPECT_TEXT(Print("conversations list --data-dir d"), TEXT(""));
	Folder.Write(TEXT("a.json"), Colours);
	Folder.Write(TEXT("b.json"),
		R"({"mode":"agent","id":"C1","messages":[{"text":"x","role":"user"}],"created":"2026-02-01T00:00:00+01:00","title":" two\n lines ","more":1})");
	EXPECT_TEXT(Print("--data-dir d conversations import a.json"), TEXT("c1\n"));
	const FString NewId = Print("conversations --data-dir=d import b.json").LeftChop(1);
	EXPECT_EQ(NewId.Len(), 36) << NewId;
	EXPECT_TEXT(Print("conversations list --data-dir=d"), NewId + TEXT("\t2026-01-31T23:00:00.000Z\tAgent\ttwo lines\n"
																	   "c1\t2026-01-31T18:30:00.123Z\tAsk\tWhat colour?\n"));
	EXPECT_TEXT(Print("conversations export c1 --format json --data-dir=d"), FString(Colours));
	const FString Markdown = TEXT("# What colour?\n\nAsk, 2026-01-31T18:30:00.123Z\n\n## User\n\nWhat\n\"colour\"? 今😀\n\n"
								  "## Assistant\n\n**Blue**\n\n## System\n\n\n");
	EXPECT_TEXT(Print("conversations export c1 --data-dir=d"), Markdown);
	EXPECT_TEXT(Print("conversations show C1 --data-dir=d"), Markdown);

	EXPECT_TEXT(Print("conversations delete c1 --data-dir=d"), TEXT(""));
	for (const char* const Words : {"show c1", "export c1", "delete c1"})
	{
		ExpectRefused((std::string("--data-dir d conversations ") + Words).c_str(), TEXT("there is no conversation c1"));
	}
	EXPECT_TEXT(Print("conversations list --data-dir=d").Left(36), NewId);
}

TEST_F(ConversationCommand, ABadFileNamesWhatIsWrongAndChangesNothing)
{
	const std::pair<const char*, const TCHAR*> Files[] = {
		{"{\n\"id\": \"a\",\n\"title\" oops\n}", TEXT("line 3 is not JSON")},
		{"{\n\"id\": \"\xFF\"}", TEXT("line 2 is not JSON")},
		{"{\n\"id\": \"a\n}", TEXT("line 2 is not JSON")},
		{"{\n\"created\": tru\n}", TEXT("line 2 is not JSON")},
		{"{\n\"id\": \"a\",\n", TEXT("line 2 is not JSON")},
		{"", TEXT("line 1 is not JSON")},
		{"[1e999]", TEXT("it holds a number that is too large")},
		{"[]", TEXT("it must hold one JSON object")},
		{"{}", TEXT("\"id\" must be a text")},
		{R"({"id":"a\tb"})", TEXT("\"id\" must be a text of one line")},
		{R"({"id":"a","title":7})", TEXT("\"title\" must be a text")},
		{R"({"id":"a","title":"t","mode":"Plan"})", TEXT("\"mode\" must be one of Agent, Ask, Review")},
		{R"({"id":"a","title":"t","mode":"Ask","created":"2026-01-31T18:30:00"})",
			TEXT("\"created\" must be a time after 1970 such as 2026-01-31T18:30:00Z")},
		{R"({"id":"a","title":"t","mode":"Ask","created":"2026-01-31T18:30:00Z","messages":[]})",
			TEXT("\"messages\" must be a list of at least one message")},
		{R"({"id":"a","title":"t","mode":"Ask","created":"2026-01-31T18:30:00Z","messages":[{"role":"user","text":""},{"role":"bot"}]})",
			TEXT("\"messages[1].role\" must be \"user\", \"assistant\" or \"system\"")},
		{R"({"id":"a","title":"t","mode":"Ask","created":"2026-01-31T18:30:00Z","messages":[{"role":"user"}]})",
			TEXT("\"messages[0].text\" must be a text")},
	};
	for (const auto& [Bytes, Clause] : Files)
	{
		Folder.Write(TEXT("bad.json"), Bytes);
		ExpectRefused("conversations import bad.json --data-dir=d", FString(TEXT("bad.json: ")) + Clause);
	}
	ExpectRefused("conversations import none.json --data-dir=d", TEXT("none.json: the file can't be read"));
	EXPECT_TEXT(Print("conversations list --data-dir=d"), TEXT(""));

	Folder.Write(TEXT("conversations.sqlite"), "no database at all, only words");
	ExpectRefused("conversations list --data-dir=.", Folder.GetPath(TEXT("conversations.sqlite")) + TEXT(" is damaged."));
	EXPECT_EQ(Folder.Read(TEXT("conversations.sqlite")), "no database at all, only words");
}

TEST_F(ConversationCommand, WorksOnWhatTheWindowStores)
{
	EXPECT_EQ(Play("open \"Vorel AI\"\nlogin \"Ada\"\nfocus \"Type your message here...\"\ntype \"How do I set a timer?\"\npress "
				   "Enter\nwait idle 30\n")
				  .ExitStatus,
		0);
	TArray<FString> Fields;
	Print("conversations list --data-dir=data").LeftChop(1).ParseIntoArray(Fields, TEXT("\t"), false);
	ASSERT_EQ(Fields.Num(), 4);
	EXPECT_TEXT(Fields[2] + Fields[3], TEXT("AgentHow do I set a timer?"));
	const FString Shown = Print(TCHAR_TO_UTF8(TEXT("conversations show --data-dir=data ") + Fields[0]));
	EXPECT_TRUE(Shown.Contains(TEXT("\n## Assistant\n\n")) && Shown.Contains(TEXT("Timers"))) << Shown;
}
