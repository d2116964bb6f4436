// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupTestSupport.h"

#include <gtest/gtest.h>

namespace
{
constexpr size_t Depth = 10'000;
constexpr size_t Large = 1'000'000;

// The text is read to its end, the markup is well-formed, and in proportion to the text.
void ExpectBounded(const std::string& Markdown)
{
	constexpr size_t LongestRunTags = 160;
	const std::string Markup = RenderMarkup(Markdown);
	EXPECT_EQ(FindMarkupError(ReadMarkup(Markup)).substr(0, 200), "") << Markdown.substr(0, 40);
	EXPECT_LT(Markup.size(), Markdown.size() * LongestRunTags + 1000) << Markdown.substr(0, 40);
}
} // namespace

TEST(HostileInput, DeepNesting)
{
	for (const char* Marker : {">", "> ", "- ", "* ", "1. ", "> - ", "[", "![", "*a ", "**a ", "*a **b ", "~~a "})
	{
		ExpectBounded(Repeat(Marker, Depth) + "x");
		ExpectBounded(Repeat(Marker, Depth) + "x\n\n" + Repeat(Marker, Depth) + "y\n");
	}
	ExpectBounded(Repeat("[", Depth) + "x" + Repeat("](u)", Depth));
	ExpectBounded(Repeat("*", Depth) + "x" + Repeat("*", Depth));
	ExpectBounded(Repeat("*a _b ", Depth) + Repeat("_ *", Depth));
}

TEST(HostileInput, ManyLinesInsideDeepNesting)
{
	std::string Stairs;
	for (size_t Level = 0; Level < 1000; ++Level)
	{
		Stairs += Repeat("  ", Level) + "- a\n";
	}
	ExpectBounded(Stairs + Repeat("\n", Large));
	ExpectBounded(Repeat("- ", Large / 2) + "a\n" + Repeat("\n", Large / 2));
	ExpectBounded(Repeat(">", Depth) + "a\n" + Repeat("lazy\n", Depth));
}

TEST(HostileInput, LongLines)
{
	for (const char* Piece :
		{"x", " ", "\t", "`", "`a", "<", "&", "&a;", "\\", "]", "[a](", "[a](<", "!", "_", "a_b_", "-", "=", "#", "| "})
	{
		ExpectBounded(Repeat(Piece, Large / std::string_view(Piece).size()));
	}
	ExpectBounded("```" + Repeat("x", Large) + "\n" + Repeat("__NL__</>&", Large / 10));
}

TEST(HostileInput, ReferencesToALongAddress)
{
	ExpectBounded("[a]: " + Repeat("x", Large / 2) + "\n\n" + Repeat("[a] ", Large / 8));
	ExpectBounded("> - [a]: u '\n" + Repeat("x\n", Large / 4) + "'\n\n" + Repeat("![][a]\n\n", Large / 16));

	// In moderation references are links.
	const std::string Address = Repeat("x", 100);
	EXPECT_NE(RenderShort("[a]: " + Address + "\n\n[a]").find("(" + Address + ")"), std::string::npos);
	const std::string Repeated = RenderShort("[a]: " + Address + "\n\n" + Repeat("[a]\n", 100));
	EXPECT_NE(Repeated.find("(\u2026)"), std::string::npos);
}

TEST(HostileInput, GuardsAgainstDeepListsDoNotShow)
{
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
	constexpr std::string_view Alphabet = "*_~~`[]()<>!&;#\\\n\n  \t-+=1.>|:\"'x\xc3\xa9\x00\x01\xff";
	uint32 State = 1;
	for (int Round = 0; Round < 2000; ++Round)
	{
		std::string Text;
		for (int Index = 0; Index < 60; ++Index)
		{
			State = State * 1664525 + 1013904223;
			Text.push_back(Alphabet[(State >> 8) % Alphabet.size()]);
		}
		ASSERT_EQ(FindMarkupError(ReadMarkup(RenderMarkup(Text))), "") << Text;
	}
}
