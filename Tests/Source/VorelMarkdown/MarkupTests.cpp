// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupTestSupport.h"

#include <functional>
#include <gtest/gtest.h>

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

TEST(Markup, Paragraphs)
{
	ExpectMarkup({
		{"", ""},
		{"\n\n", ""},
		{"one", "<Paragraph>one</>"},
		{"one\ntwo", "<Paragraph>one two</>"},
		{"one\r\ntwo\rthree", "<Paragraph>one two three</>"},
		{"one\n\n\n\ntwo\n", "<Paragraph>one</>\n\n<Paragraph>two</>"},
		{"one  \ntwo", "<Paragraph>one</>\n<Paragraph>two</>"},
		{"*one\\\ntwo*", "<Paragraph.Emphasis>one</>\n<Paragraph.Emphasis>two</>"},
		{"h\u00e9 \u4f60\u597d \U0001F600", "<Paragraph>h\u00e9 \u4f60\u597d \U0001F600</>"},
	});
}

TEST(Markup, AllFourCharactersAreEscapedAndHtmlIsText)
{
	ExpectMarkup({
		{"a < b && c > \"d\"", "<Paragraph>a &lt; b &amp;&amp; c &gt; &quot;d&quot;</>"},
		{"TArray<int> and <void>", "<Paragraph>TArray&lt;int&gt; and &lt;void&gt;</>"},
		{"<script>alert(1)</script>", "<Paragraph>&lt;script&gt;alert(1)&lt;/script&gt;</>"},
		{"</> <code>x</>", "<Paragraph>&lt;/&gt; &lt;code&gt;x&lt;/&gt;</>"},
		{"&lt;VorelMarkdown.Strong&gt;", "<Paragraph>&lt;Strong&gt;</>"},
		{"`a<b>&\"`", "<Paragraph.InlineCode>a&lt;b&gt;&amp;&quot;</>"},
	});
}

TEST(Markup, InlineFormats)
{
	ExpectMarkup({
		{"a *b* c", "<Paragraph>a </><Paragraph.Emphasis>b</><Paragraph> c</>"},
		{"**a _b_**", "<Paragraph.Strong>a </><Paragraph.Strong.Emphasis>b</>"},
		{"*a **b***", "<Paragraph.Emphasis>a </><Paragraph.Emphasis.Strong>b</>"},
		{"~~a~~", "<Paragraph.Strikethrough>a</>"},
		{"~5 to ~10 \\~x~ `~y` [z](~u)",
			"<Paragraph>~5 to ~10 ~x~ </><Paragraph.InlineCode>~y</><Paragraph> </><Paragraph.Link>z</><Paragraph> (~u)</>"},
		{"**`a`**", "<Paragraph.Strong.InlineCode>a</>"},
		{"`a  b\nc`", "<Paragraph.InlineCode>a  b c</>"},
		{"\\*a\\*", "<Paragraph>*a*</>"},
		{"**a", "<Paragraph>**a</>"},
	});
}

TEST(Markup, OfMoreThanThreeWordsTheInnermostStay)
{
	ExpectMarkup({
		{"*a **b ~~c `d`~~***", "<Paragraph.Emphasis>a </><Paragraph.Emphasis.Strong>b </>"
								"<Paragraph.Emphasis.Strong.Strikethrough>c </><Paragraph.Strong.Strikethrough.InlineCode>d</>"},
		{"**a **b** c**", "<Paragraph.Strong>a b c</>"},
		{"*a **b _c_***", "<Paragraph.Emphasis>a </><Paragraph.Emphasis.Strong>b </><Paragraph.Strong.Emphasis>c</>"},
	});
}

TEST(Markup, DelimitersInAnAddressDoNotLeakIntoTheNextBlock)
{
	ExpectMarkup({
		{"~~a [b](~~c)\n\nd",
			"<Paragraph.Strikethrough>a </><Paragraph.Strikethrough.Link>b</><Paragraph.Strikethrough> (~~c)</>\n\n<Paragraph>d</>"},
		{"[~~a](b~~c) d~~ e", "<Paragraph.Link>~~a</><Paragraph> (b~~c) d e</>"},
	});
}

namespace
{
// Puts the text into the formats in every order of up to four of them.
void VisitNestings(const std::string& Text, unsigned Used, int Depth, const std::function<void(const std::string&)>& Visit)
{
	static constexpr const char* Formats[][2] = {{"*", "*"}, {"__", "__"}, {"~~", "~~"}, {"[", "](u)"}, {"![", "](i)"}, {"`", "`"}};
	Visit(Text);
	for (unsigned Format = 0; Depth < 4 && Format < 6; ++Format)
	{
		if (!(Used & 1u << Format))
		{
			VisitNestings(Formats[Format][0] + Text + Formats[Format][1], Used | 1u << Format, Depth + 1, Visit);
		}
	}
}
} // namespace

TEST(Markup, EveryNestingOfBlocksAndFormatsHasAName)
{
	std::string All;
	for (const char* Block : {"", "# ", "###### ", "- ", "2. "})
	{
		for (const char* Quote : {"", "> ", ">>>> ", ">>>>>> "})
		{
			VisitNestings("x", 0, 0, [&](const std::string& Text) { All += std::string(Quote) + Block + Text + "\n\n---\n\n"; });
		}
	}
	const std::string Markup = RenderMarkup(All);
	EXPECT_EQ(FindMarkupError(ReadMarkup(Markup)), "");
	EXPECT_NE(Markup.find("<VorelMarkdown.Blockquote.Header1.Link.Strikethrough.Strong>x</>"), std::string::npos);
}

TEST(Markup, Headings)
{
	ExpectMarkup({
		{"# One", "<Header1>One</>"},
		{"###### Six `x`", "<Header6>Six </><Header6.InlineCode>x</>"},
		{"a\n# b\nc\n## d\n### e", "<Paragraph>a</>\n\n<Header1>b</>\n<Paragraph>c</>\n\n<Header2>d</>\n<Header3>e</>"},
		{"Title\n===\ntext", "<Header1>Title</>\n<Paragraph>text</>"},
		{"#\n\na", "<Paragraph>a</>"},
	});
}

TEST(Markup, LinksShowTheirAddressUnlessTheTextTellsIt)
{
	ExpectMarkup({
		{"[text](https://a.b/?x&y)", "<Paragraph.Link>text</><Paragraph> (https://a.b/?x&amp;y)</>"},
		{"[a **b**](u) c", "<Paragraph.Link>a </><Paragraph.Link.Strong>b</><Paragraph> (u) c</>"},
		{"[https://a.b](https://a.b)", "<Paragraph.Link>https://a.b</>"},
		{"<https://a.b/c>", "<Paragraph.Link>https://a.b/c</>"},
		{"<me@a.b>", "<Paragraph.Link>me@a.b</>"},
		{"[x]()", "<Paragraph.Link>x</>"},
		{"[](u)", "<Paragraph> (u)</>"},
		{"[t][r]\n\n[r]: http://r 'title'", "<Paragraph.Link>t</><Paragraph> (http://r)</>"},
		{"[t](a&amp;b)", "<Paragraph.Link>t</><Paragraph> (a&amp;b)</>"},
		{"**[t](u)**", "<Paragraph.Strong.Link>t</><Paragraph.Strong> (u)</>"},
	});
}

TEST(Markup, ImagesShowTheirDescription)
{
	ExpectMarkup({
		{"![a *b* c](http://track/me.png)", "<Paragraph.Image>a b c</>"},
		{"![](pic.png)", "<Paragraph.Image>pic.png</>"},
		{"[![alt](i.png)](u)", "<Paragraph.Link.Image>alt</><Paragraph> (u)</>"},
		{"![see [x](u)](i)", "<Paragraph.Image>see x</>"},
	});
}

TEST(Markup, Lists)
{
	ExpectMarkup({
		{"- a\n- **b**", "<UnorderedList>  \u2022 a</>\n<UnorderedList>  \u2022 </><UnorderedList.Strong>b</>"},
		{"3. a\n4. b", "<OrderedList>  3. a</>\n<OrderedList>  4. b</>"},
		{"1) a", "<OrderedList>  1) a</>"},
		{"text\n\n- a\n\n  more\n- b", "<Paragraph>text</>\n\n<UnorderedList>  \u2022 a</>\n\n<UnorderedList>    more</>\n\n"
									   "<UnorderedList>  \u2022 b</>"},
		{"- a\n  1. b\n  2. c\n- d", "<UnorderedList>  \u2022 a</>\n<OrderedList>      1. b</>\n<OrderedList>      2. c</>\n"
									 "<UnorderedList>  \u2022 d</>"},
		{"- - a", "<UnorderedList>  \u2022   \u2022 a</>"},
		{"-\n- a", "<UnorderedList>  \u2022 </>\n<UnorderedList>  \u2022 a</>"},
		{"- a  \n  b", "<UnorderedList>  \u2022 a</>\n<UnorderedList>    b</>"},
		{"- # h\n  t", "<Header1>  \u2022 h</>\n<UnorderedList>    t</>"},
		{"- > q", "<Blockquote.Paragraph>  \u2022 q</>"},
		{"999999999. a\n1. b", "<OrderedList>  999999999. a</>\n<OrderedList>  1000000000. b</>"},
	});
}

TEST(Markup, Quotes)
{
	ExpectMarkup({
		{"> a\n> b", "<Blockquote.Paragraph>a b</>"},
		{"> a\n> > b\n\nc", "<Blockquote.Paragraph>a</>\n\n<Blockquote.Blockquote.Paragraph>    b</>\n\n<Paragraph>c</>"},
		{"> ## a", "<Blockquote.Header2>a</>"},
		{"> - *a*", "<Blockquote.UnorderedList>  \u2022 </><Blockquote.UnorderedList.Emphasis>a</>"},
		{"> 1. a", "<Blockquote.OrderedList>  1. a</>"},
		{">>>>>> a", "<Blockquote.Blockquote.Blockquote.Blockquote.Paragraph>                    a</>"},
		{">", ""},
	});
}

TEST(Markup, Rules)
{
	const std::string Rule = Repeat("\u2014", 20);
	EXPECT_EQ(RenderShort("a\n\n---\n\nb"), "<Paragraph>a</>\n\n<HorizontalRule>" + Rule + "</>\n\n<Paragraph>b</>");
	EXPECT_EQ(RenderShort("> ***"), "<Blockquote.Paragraph>" + Rule + "</>");
}

TEST(Markup, Entities)
{
	ExpectMarkup({
		{"&amp;lt; &copy; &nbsp;| &ngE; &Afr;", "<Paragraph>&amp;lt; \u00a9 \u00a0| \u2267\u0338 \U0001D504</>"},
		{"&#8212;&#x1F600;", "<Paragraph>\u2014\U0001F600</>"},
		{"&unknown; &AMP", "<Paragraph>&amp;unknown; &amp;AMP</>"},
		{"&#0; &#xD800; &#9999999; &#27;", "<Paragraph>\ufffd \ufffd \ufffd \ufffd</>"},
		{"a&NewLine;b&#10;c&#x2028;d", "<Paragraph>a b c d</>"},
		{"`&amp;`", "<Paragraph.InlineCode>&amp;amp;</>"},
	});
}

TEST(Markup, WhatNobodyCanSeeIsReplaced)
{
	using namespace std::string_view_literals;
	EXPECT_EQ(RenderShort("a\0b\x1b[31m\x7f"sv), "<Paragraph>a\ufffdb\ufffd[31m\ufffd</>");
	EXPECT_EQ(RenderShort("a\u0085b\u2028c\u2029d\x0b"
						  "e\x0c"
						  "f"),
		"<Paragraph>a b c d e f</>");
	EXPECT_EQ(RenderShort("\ufeff# a"), "<Header1>a</>");
	EXPECT_EQ(RenderShort("a\xff\xc3"), "<Paragraph>a\ufffd\ufffd</>");
	const TCHAR LoneSurrogates[] = {0xDC00, u'a', 0xD800, 0};
	EXPECT_EQ(RenderMarkup(FStringView(LoneSurrogates)), "<VorelMarkdown.Paragraph>\ufffda\ufffd</>");
}
