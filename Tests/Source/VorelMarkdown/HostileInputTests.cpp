// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupTestSupport.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace
{
constexpr size_t Depth = 10'000;
constexpr size_t Large = 100'000;
constexpr size_t Megabyte = 1'000'000;

// The text is read to its end, the markup is well-formed, and in proportion to the text. Returns what is shown.
std::string ExpectBounded(const std::string& Markdown)
{
	constexpr size_t LongestRunTags = 160;
	const std::string Markup = RenderMarkup(Markdown);
	EXPECT_LT(Markup.size(), Markdown.size() * LongestRunTags + 1000) << Markdown.substr(0, 40);
	EXPECT_EQ(FindMarkupError(ReadMarkup(Markup)).substr(0, 200), "") << Markdown.substr(0, 40);
	return GetShownText(Markup);
}

size_t CountLetters(std::string_view Text, char Letter)
{
	return static_cast<size_t>(std::ranges::count(Text, Letter));
}
} // namespace

TEST(HostileInput, DeepNesting)
{
	for (const char* Marker :
		{">", "> ", "- ", "* ", "1. ", "> - ", "- [x] ", "[", "![", "*a ", "**a ", "*a **b ", "~~a ", "<b>", "(http://a.b/", "|"})
	{
		const std::string Shown = ExpectBounded(Repeat(Marker, Depth) + "Q\n\n" + Repeat(Marker, Depth) + "Q\n");
		EXPECT_EQ(CountLetters(Shown, 'Q'), 2u) << Marker;
	}
}

TEST(HostileInput, ManyLinesAndLongLines)
{
	std::string Stairs;
	for (size_t Level = 0; Level < 300; ++Level)
	{
		Stairs += Repeat("  ", Level) + "- a\n";
	}
	for (const std::string& Text : {Stairs + Repeat("\n", Large), Repeat("- ", Large) + "a\n" + Repeat("\n", Large),
			 Repeat(">", Depth) + "a\n" + Repeat("lazy\n", Depth), Repeat("[", Depth) + "x" + Repeat("](u)", Depth),
			 Repeat("*a _b ", Depth) + Repeat("_ *", Depth), Repeat("~~a ", Depth) + Repeat("b~~ ", Depth),
			 "```" + Repeat("x", Large) + "\n" + Repeat("__NL__</>&", Large / 10),
			 "[a]: " + Repeat("x", Large) + "\n\n" + Repeat("[a] ", Large),
			 "> - [a]: u '\n" + Repeat("x\n", Large) + "'\n\n" + Repeat("![][a]\n\n", Large / 16)})
	{
		ExpectBounded(Text);
	}
	for (const char* Piece :
		{" ", "\t", "`", "`a", "<", "<!--", "&", "&a;", "\\", "]", "[a](", "[a](<", "!", "_", "a_b_", "-", "=", "#", "| ", "a@b.c"})
	{
		ExpectBounded(Repeat(Piece, Large / std::string_view(Piece).size()));
	}
}

TEST(HostileInput, NothingOfALargeTextIsLost)
{
	for (const std::string& Text :
		{Repeat("word ", Megabyte / 5) + "end", Repeat("x", Large), Repeat("\u0645", Large), Repeat("e\u0301", Large)})
	{
		EXPECT_EQ(ExpectBounded(Text), Text);
	}
	const std::string Code = Repeat("int a; // __NL </> & <b> \u0645\u0301 \U0001F468\u200D\U0001F469\n", Megabyte / 40) + "end";
	EXPECT_EQ(ExpectBounded("```cpp\n" + Code), Code);
	EXPECT_EQ(ExpectBounded("```cpp\n" + Code + "\n```\n"), Code);
	EXPECT_EQ(CountLetters(ExpectBounded(Repeat("```\nQ\n```\n\n", 5000)), 'Q'), 5000u);
	EXPECT_EQ(CountLetters(ExpectBounded("|a|b|\n|-|-|\n" + Repeat("|Q|Q|\n", 5000)), 'Q'), 10'000u);
}

TEST(HostileInput, WhatRepeatsTooOftenIsTextAndNothingOfItIsLost)
{
	constexpr size_t Count = Large / 10;
	for (const char* Piece : {"http://Q.b ", "www.Q.b ", "(http://Q.b/", "[Q]\n", "~~Q~~ ", "![Q](b)\n", "[Q](b)\n"})
	{
		EXPECT_EQ(CountLetters(ExpectBounded(Repeat(Piece, Count)), 'Q'), Count) << Piece;
	}
	const std::string Head = Repeat("|a", 33) + "|\n";
	EXPECT_EQ(RenderMarkup(Head + Repeat("|---", 33) + "|\n|b|").find("Table"), std::string::npos);
	EXPECT_NE(RenderMarkup(Head.substr(2) + Repeat("|---", 32) + "|\n|b|").find("Table"), std::string::npos);
}

TEST(HostileInput, GuardsDoNotShow)
{
	// In moderation references are links.
	const std::string Address = Repeat("x", 100);
	EXPECT_NE(RenderShort("[a]: " + Address + "\n\n[a]").find("(" + Address + ")"), std::string::npos);
	const std::string Repeated = RenderShort("[a]: " + Address + "\n\n" + Repeat("[a]\n", 100));
	EXPECT_NE(Repeated.find("(\u2026)"), std::string::npos);
	const std::string Deep = Repeat(" ", 300) + "- x";
	EXPECT_EQ(RenderShort("```\n" + Deep + "\n```\n"), "<code>" + Deep + "</>");
	EXPECT_EQ(RenderShort("a\n" + Deep), "<Paragraph>a - x</>");
	EXPECT_NE(RenderShort(Repeat("- ", 200)).find("\u2022 - - "), std::string::npos);
}

TEST(HostileInput, EveryByteOnceAndAtRandom)
{
	std::string Bytes;
	for (int Byte = 0; Byte < 256; ++Byte)
	{
		Bytes.push_back(static_cast<char>(Byte));
	}
	ExpectBounded(Bytes);

	// A fixed sequence, so that a failure comes again.
	using namespace std::string_view_literals;
	constexpr std::string_view Pieces[] = {"*", "**", "_", "~~", "~", "`", "``", "```", "~~~", "[", "]", "](u)", "(", ")", "<", ">", "<b>",
		"<!--", "!", "&amp;", "#", ";", "\\", "\n", "\n\n", "  ", "\t", "- ", "1. ", "> ", "---", "===", "|", "|-|-|", "[ ] ", "[a]: b",
		"www.", "http://a", "a@b.c", "\"", "x", "\u00e9", "\0"sv, "\x01", "\xff", "</>", "__NL__"};
	uint32 State = 1;
	for (int Round = 0; Round < 4000; ++Round)
	{
		std::string Text;
		for (int Index = 0; Index < 20; ++Index)
		{
			State = State * 1664525 + 1013904223;
			Text += Pieces[(State >> 8) % std::size(Pieces)];
		}
		ASSERT_EQ(FindMarkupError(ReadMarkup(RenderMarkup(Text))), "") << Text;
	}
}
