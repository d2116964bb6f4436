// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupTestSupport.h"

#include <gtest/gtest.h>

namespace
{
std::string Fence(std::string_view Code)
{
	return "```cpp\n" + std::string(Code) + "```\n";
}

std::string CodeRun(std::string_view Content)
{
	return "<code>" + std::string(Content) + "</>";
}

// What the reader of the markup and the decorator make of a code run, in this order.
std::string ReadBack(const std::string& Markup)
{
	FString Code = FString(FUTF8ToTCHAR(Markup.c_str())).Mid(6).LeftChop(3);
	for (const auto& [From, To] : {std::pair{TEXT("&lt;"), TEXT("<")}, {TEXT("&gt;"), TEXT(">")}, {TEXT("&amp;"), TEXT("&")}})
	{
		Code.ReplaceInline(From, To);
	}
	Code.ReplaceInline(TEXT("__NL__"), TEXT("\n"), ESearchCase::IgnoreCase);
	return TCHAR_TO_UTF8(Code);
}
} // namespace

TEST(CodeMarkup, ABlockIsOneRunOnItsOwnLine)
{
	EXPECT_EQ(RenderShort(Fence("int a;\nint b;\n")), CodeRun("int a;__NL__int b;"));
	EXPECT_EQ(RenderShort(Fence("")), CodeRun(""));
	EXPECT_EQ(RenderShort("a\n" + Fence("x\n") + "b"), "<Paragraph>a</>\n\n" + CodeRun("x") + "\n\n<Paragraph>b</>");
	EXPECT_EQ(RenderShort("    indented\n      more\n"), CodeRun("indented__NL__  more"));
	EXPECT_EQ(RenderShort("- ```\n  x\n  ```\n"), "<UnorderedList>  \u2022 </>\n" + CodeRun("x"));
	EXPECT_EQ(
		RenderShort("- a\n  ```\n  x\n  ```\n  b\n"), "<UnorderedList>  \u2022 a</>\n\n" + CodeRun("x") + "\n<UnorderedList>    b</>");
	EXPECT_EQ(RenderShort("# T\n" + Fence("x\n")), "<Header1>T</>\n\n" + CodeRun("x"));
	EXPECT_EQ(RenderShort("> ~~~\n> x\n"), CodeRun("x"));
}

TEST(CodeMarkup, OnlyWhatWouldEndTheRunOrReadAsAnEscapeIsEscaped)
{
	EXPECT_EQ(RenderShort(Fence("a << b && \"c\" </> </Tag>\n")), CodeRun("a << b &amp;&amp; \"c\" &lt;/&gt; </Tag>"));
	EXPECT_EQ(RenderShort(Fence("&lt;/&gt; &amp;\n")), CodeRun("&amp;lt;/&amp;gt; &amp;amp;"));
}

TEST(CodeMarkup, BlanksTabsAndEmptyLinesAreKept)
{
	EXPECT_EQ(RenderShort(Fence("\n\ta\n\t \tb  \n\n\t\n  \n\n")), CodeRun("__NL__\ta__NL__\t \tb  __NL____NL__\t__NL__  __NL__"));
	EXPECT_EQ(RenderShort("```\r\na\r\n\r\nb\r\n```\r\n"), CodeRun("a__NL____NL__b"));
	// The fence stands two columns in, and so does its code: a tab reaches over that in part.
	EXPECT_EQ(RenderShort("- ```\n\ta\n  \tb\n  ```\n"), "<UnorderedList>  \u2022 </>\n" + CodeRun("  a__NL__\tb"));
	EXPECT_EQ(RenderShort("> ```\n>\t\ta\n> ```\n"), CodeRun("  \ta"));
}

TEST(CodeMarkup, UnderscoresAreRawAndReadBackUnlessTheySpellThePlaceholder)
{
	EXPECT_EQ(RenderShort(Fence("a__NL__b\n")), CodeRun("a__NL__b"));
	for (const char* Code : {"__NLx\n", "__nl_langinfo\n", "_NL__\n_NL__\n", "__N\nL__\n", "_\n_\n"})
	{
		EXPECT_EQ(ReadBack(RenderShort(Fence(Code))) + "\n", Code);
	}
}

TEST(CodeMarkup, ReadsBackAsItWasWritten)
{
	for (const char* Code : {"&amp; &lt;/&gt; </> <</>> &</>;\n", "a\n\n\nb\n\n", "x\n\t\t\n \t x\n"})
	{
		EXPECT_EQ(ReadBack(RenderShort(Fence(Code))) + "\n", Code);
	}
}
