// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayScript.h"
#include "Play/PlayTokens.h"
#include "Support/Printers.h"

namespace
{
FString GetError(const FString& Text)
{
	FString Error;
	return FPlayScript::Parse(TEXT("a.play"), Text, Error).IsSet() ? FString() : Error;
}
} // namespace

TEST(PlayScript, NumbersLinesAsAnEditorDoes)
{
	FString Error;
	const TOptional<FPlayScript> Script = FPlayScript::Parse(TEXT("a.play"), TEXT("# a comment\r\n\r\nsleep 0\r\n   \n#\nsleep 1"), Error);
	ASSERT_TRUE(Script.IsSet()) << Error;
	ASSERT_EQ(Script->Lines.Num(), 2);
	EXPECT_EQ(Script->Lines[0].Number, 3);
	EXPECT_EQ(Script->Lines[1].Number, 6);
	EXPECT_TEXT(GetError(TEXT("sleep 0\n\n  jump")), TEXT("a.play:3: there is no command jump"));
}

TEST(PlayScript, SaysWhatIsWrong)
{
	const std::pair<const TCHAR*, const TCHAR*> Lines[] = {
		{TEXT("Open \"a\""), TEXT("there is no command Open")},
		{TEXT("\"open\""), TEXT("a line begins with a command")},
		{TEXT("open"), TEXT("the label of a menu entry in double quotes is missing")},
		{TEXT("click \"\""), TEXT("a text in double quotes is missing")},
		{TEXT("click \"a"), TEXT("a text has no closing quote")},
		{TEXT("click \"a\\"), TEXT("\\ stands for nothing; there are \\n, \\t, \\\" and \\\\")},
		{TEXT("click \"\\q\""), TEXT("\\q stands for nothing; there are \\n, \\t, \\\" and \\\\")},
		{TEXT("click \"a\" 0"), TEXT("a match is counted by a whole number from 1")},
		{TEXT("click \"a\" 1 2"), TEXT("nothing may follow here: 2")},
		{TEXT("press Ctrl+"), TEXT("there is no key Ctrl+")},
		{TEXT("press Hyper+A"), TEXT("there is no key Hyper+A")},
		{TEXT("wheel \"a\" 0"), TEXT("a number of notches is missing: whole, not 0, and at most 10000 either way")},
		{TEXT("wait"), TEXT("one waits for: idle, text, no text")},
		{TEXT("wait idle soon"), TEXT("a number of seconds from 0 to 86400 is missing")},
		{TEXT("expect \"a\""), TEXT("one expects: text, no text")},
		{TEXT("screenshot tab \"a.png\""), TEXT("a file in double quotes is missing")},
		{TEXT("sent \"a.txt\""), TEXT("this command is called: sent to browser")},
		{TEXT("resize 900"), TEXT("a width and a height from 1 to 8192 are missing, like 1000x800")},
		{TEXT("sleep inf"), TEXT("a number of seconds from 0 to 86400 is missing")},
	};
	for (const auto& [Line, Problem] : Lines)
	{
		EXPECT_TEXT(GetError(Line), FString(TEXT("a.play:1: ")) + Problem);
	}
}

TEST(PlayScript, AFileThatIsNoTextIsRefused)
{
	FString Error;
	EXPECT_FALSE(FPlayScript::Load(TEXT("/proc/self/exe"), Error).IsSet());
	EXPECT_TEXT(Error, TEXT("/proc/self/exe: this is not UTF-8 text"));
}

TEST(PlayTokens, TextsKeepEverythingBetweenTheirQuotes)
{
	TArray<FPlayToken> Tokens;
	FString Error;
	ASSERT_TRUE(ReadPlayTokens(TEXT("say \"a # b\"  \"1\\n2\\t3 \\\"4\\\" \\\\n\" 5#\"6"), Tokens, Error)) << Error;
	ASSERT_EQ(Tokens.Num(), 4);
	EXPECT_TEXT(Tokens[1].Text, TEXT("a # b"));
	EXPECT_TEXT(Tokens[2].Text, TEXT("1\n2\t3 \"4\" \\n"));
	EXPECT_TEXT(Tokens[3].Text, TEXT("5"));
}
