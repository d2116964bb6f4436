// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupTestSupport.h"

#include <gtest/gtest.h>

// What the public suites do not tell: lines, gaps and indents, and what is left of a text that goes beyond the styles.

namespace
{
struct FCase
{
	const char* Markdown;
	const char* Markup;
};

void ExpectMarkup(std::initializer_list<FCase> Cases)
{
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(RenderShort(Case.Markdown), Case.Markup) << "of: " << Case.Markdown;
		EXPECT_EQ(FindMarkupError(ReadMarkup(RenderMarkup(Case.Markdown))), "");
	}
}
} // namespace

TEST(Markup, BlocksStandApart)
{
	ExpectMarkup({
		{"", ""},
		{"\n\n", ""},
		{"one\r\ntwo\rthree", "<Paragraph>one two three</>"},
		{"one\n\n\n\ntwo\n", "<Paragraph>one</>\n\n<Paragraph>two</>"},
		{"*one\\\ntwo*  \nthree", "<Paragraph.Emphasis>one</>\n<Paragraph.Emphasis>two</>\n<Paragraph>three</>"},
		{"a\n# b\nc\n## d\n### e", "<Paragraph>a</>\n\n<Header1>b</>\n<Paragraph>c</>\n\n<Header2>d</>\n<Header3>e</>"},
		{"#\n\na", "<Paragraph>a</>"},
		{"<b>\n  \"<i>\n</b>\n\n<!--\n\n\nx\n-->\na",
			"<Paragraph>&lt;b&gt;</>\n<Paragraph>  &quot;&lt;i&gt;</>\n<Paragraph>&lt;/b&gt;</>\n\n"
			"<Paragraph>&lt;!--</>\n\n<Paragraph>x</>\n<Paragraph>--&gt;</>\n\n<Paragraph>a</>"},
	});
}

TEST(Markup, Lists)
{
	ExpectMarkup({
		{"3) a\n4) b", "<OrderedList>  3) a</>\n<OrderedList>  4) b</>"},
		{"text\n\n- a\n\n  more\n- b", "<Paragraph>text</>\n\n<UnorderedList>  \u2022 a</>\n\n<UnorderedList>    more</>\n\n"
									   "<UnorderedList>  \u2022 b</>"},
		{"- a\n  1. b\n  2. c\n- d", "<UnorderedList>  \u2022 a</>\n<OrderedList>      1. b</>\n<OrderedList>      2. c</>\n"
									 "<UnorderedList>  \u2022 d</>"},
		{"- - a", "<UnorderedList>  \u2022   \u2022 a</>"},
		{"-\n- a", "<UnorderedList>  \u2022 </>\n<UnorderedList>  \u2022 a</>"},
		{"- a  \n  b", "<UnorderedList>  \u2022 a</>\n<UnorderedList>    b</>"},
		{"- # h\n  t", "<Header1>  \u2022 h</>\n<UnorderedList>    t</>"},
		{"- [x] a  \n  b\n- [ ] c", "<UnorderedList>  \u2611 a</>\n<UnorderedList>      b</>\n<UnorderedList>  \u2610 c</>"},
		{"1. [X] a\n2. [] b", "<OrderedList>  1. \u2611 a</>\n<OrderedList>  2. [] b</>"},
		{"999999999. a\n1. b", "<OrderedList>  999999999. a</>\n<OrderedList>  1000000000. b</>"},
	});
}

TEST(Markup, Quotes)
{
	ExpectMarkup({
		{"> a\n> > b\n\nc", "<Blockquote.Paragraph>    a</>\n\n<Blockquote.Blockquote.Paragraph>        b</>\n\n<Paragraph>c</>"},
		{"> - *a*", "<Blockquote.UnorderedList>      \u2022 </><Blockquote.UnorderedList.Emphasis>a</>"},
		{"- > q", "<Blockquote.Paragraph>  \u2022 q</>"},
		{">>>>>> a", "<Blockquote.Blockquote.Blockquote.Blockquote.Paragraph>                        a</>"},
		{">", ""},
	});
}

TEST(Markup, Tables)
{
	ExpectMarkup({
		{"a\n\n|x|*y*|\n|-|:-:|\n|`p\\|q`|r\ts|\n||\n\nb", "<Paragraph>a</>\n\n<Table.Strong>x</><Table>\t</><Table.Strong.Emphasis>y</>\n"
														   "<Table.InlineCode>p|q</><Table>\tr s</>\n<Table>\t</>\n\n<Paragraph>b</>"},
		{"> |x|\n> |-|\n> |y|", "<Blockquote.Paragraph>    </><Blockquote.Paragraph.Strong>x</>\n<Blockquote.Paragraph>    y</>"},
		{"- a\n\n  x|y\n  -|-\n  `p|q`|r",
			"<UnorderedList>  \u2022 a</>\n\n<Table>    </><Table.Strong>x</><Table>\t</><Table.Strong>y</>\n"
			"<Table>    </><Table.InlineCode>p|q</><Table>\tr</>"},
		{"> a\n> |x|\n> |:-:|\n> |y|", "<Blockquote.Paragraph>    a</>\n\n<Blockquote.Paragraph>    </><Blockquote.Paragraph.Strong>x</>\n"
									   "<Blockquote.Paragraph>    y</>"},
		{"1. a\n   x | y\n   -|-\n   z", "<OrderedList>  1. a</>\n\n<Table>      </><Table.Strong>x</><Table>\t</><Table.Strong>y</>\n"
										 "<Table>      z\t</>"},
		{"```\na\n|x|\n|-|\n```", "<code>a__NL__|x|__NL__|-|</>"},
		{"|x|y|\n|-|\n|z|", "<Paragraph>|x|y| |-| |z|</>"},
		{"|x|y|\n|-|-|-|", "<Paragraph>|x|y| |-|-|-|</>"},
	});
}

TEST(Markup, OfMoreThanThreeWordsTheInnermostStay)
{
	ExpectMarkup({
		{"*a **b ~~c `d`~~***", "<Paragraph.Emphasis>a </><Paragraph.Emphasis.Strong>b </>"
								"<Paragraph.Emphasis.Strong.Strikethrough>c </><Paragraph.Strong.Strikethrough.InlineCode>d</>"},
		{"*a **b _c_***", "<Paragraph.Emphasis>a </><Paragraph.Emphasis.Strong>b </><Paragraph.Strong.Emphasis>c</>"},
	});
}

TEST(Markup, WhatTheParserMistakesIsPutRight)
{
	ExpectMarkup({
		{"~5 to ~10 \\~x~ `~y` [z](~u)",
			"<Paragraph>~5 to ~10 ~x~ </><Paragraph.InlineCode>~y</><Paragraph> </><Paragraph.Link>z</><Paragraph> (~u)</>"},
		{"~~a [b](~~c)\n\nd",
			"<Paragraph.Strikethrough>a </><Paragraph.Strikethrough.Link>b</><Paragraph.Strikethrough> (~~c)</>\n\n<Paragraph>d</>"},
		{"www..a@b.c\n&", "<Paragraph.Link>www..a@b.c</><Paragraph>  &amp;</>"},
		{"[~~a](b~~c) d~~ e", "<Paragraph.Link>~~a</><Paragraph> (b~~c) d e</>"},
	});
}

TEST(Markup, WhatNobodyCanSeeIsReplaced)
{
	using namespace std::string_view_literals;
	EXPECT_EQ(RenderShort("a\0b\x1b[31m\x7f"sv), "<Paragraph>a\ufffdb\ufffd[31m\ufffd</>");
	ExpectMarkup({
		{"&#0; &#xD800; &#9999999; &#27; \ufdd0", "<Paragraph>\ufffd \ufffd \ufffd \ufffd \ufffd</>"},
		{"a&NewLine;b&#10;c&#x2028;d", "<Paragraph>a b c d</>"},
		{"a\u0085b\u2028c\u2029d\x0b"
		 "e\x0c"
		 "f",
			"<Paragraph>a b c d e f</>"},
		{"\ufeff# a", "<Header1>a</>"},
		{"a\xff\xc3", "<Paragraph>a\ufffd\ufffd</>"},
		{"h\u00e9 \u4f60\u597d \U0001F600", "<Paragraph>h\u00e9 \u4f60\u597d \U0001F600</>"},
	});
	const TCHAR LoneSurrogates[] = {0xDC00, u'a', 0xD800, 0};
	EXPECT_EQ(RenderMarkup(FStringView(LoneSurrogates)), "<VorelMarkdown.Paragraph>\ufffda\ufffd</>");
}
