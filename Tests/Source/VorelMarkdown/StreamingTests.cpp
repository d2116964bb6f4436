// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownParser.h"
#include "MarkupTestSupport.h"

#include <gtest/gtest.h>

namespace
{
constexpr std::string_view Documents[] = {
	"# Title\n\nSome *emphasis*, **strong _both_** and ~~gone~~ `code` with <int> & \"quotes\".  \nA hard break\\\nand [a "
	"link](https://a.b/c?d&e "
	"'title') ![image](x.png) &amp; &copy; &#8212; <https://auto.link>\n\nSetext\n------\n\n***\n",
	"Items:\n- one\n- two\n  - nested **bold**\n    1. deep `x`\n\n       loose\n- ```cpp\n  if (a </> b) {\n\n  }\n  ```\n\n10. ten\n11. "
	"eleven\n",
	"> quote\n> > nested *a*\n> > - list in quote\n> > ```\n> > code & <b>\n> > ```\n> back\n>\n> # Heading\nlazy\n",
	"Text\n\n```cpp\nvoid f() // __NL__ `tick`\n{\n\treturn; // </> "
	"&lt;\n}\n```\n\nMore\n\n~~~\ntilde\n~~~\n\n````md\n```\ninner\n```\n````\nend",
	"*a **b ~~c [d `e` ![f *g*](h)](i) j~~ k** l* m\n\n[ref]: http://x 'y'\n\n[ref] [ref][] "
	"[text][ref]\n\n<script>\nalert('</>')\n</script>\n",
	"\u4f60\u597d **\u4e16\u754c** \U0001F600\U0001F468\u200D\U0001F469 \u0645\u0631\u062d\u0628\u0627 *\u05e9\u05dc\u05d5\u05dd*\n\n- "
	"\U0001F680 go\r\n\r\n    indented\tcode\r\n\r\nend\x01\x1b[0m",
};

size_t CountRuns(std::string_view Markup, std::string_view Tag)
{
	size_t Count = 0;
	for (size_t Position = 0; (Position = Markup.find(Tag, Position)) != std::string_view::npos; ++Position)
	{
		++Count;
	}
	return Count;
}
} // namespace

TEST(Streaming, EveryPrefixIsWellFormed)
{
	for (std::string_view Document : Documents)
	{
		const FString Whole(FUTF8ToTCHAR(Document.data(), static_cast<int32>(Document.size())));
		for (int32 Length = 0; Length <= Whole.Len(); ++Length)
		{
			ASSERT_EQ(FindMarkupError(ReadMarkup(RenderMarkup(FStringView(*Whole, Length)))), "") << TCHAR_TO_UTF8(Whole.Left(Length));
		}
	}
}

TEST(Streaming, AFenceNeverShowsAsBackticksAndABlockNeverGoesAgain)
{
	const std::string Document = "Text\n\n```cpp\nint a;\n\nint b;\n```\n\n- item\n  ~~~\n  x\n  ~~~\n\n> ```\n> y\n> ```\nEnd\n";
	size_t Blocks = 0;
	std::string Code;
	for (size_t Length = 0; Length <= Document.size(); ++Length)
	{
		const std::string Markup = RenderShort(Document.substr(0, Length));
		for (const FShownRun& Run : ReadMarkup(Markup))
		{
			EXPECT_TRUE(Run.Name == "code" || Run.Text.find_first_of("`~") == std::string::npos) << Markup;
		}
		const size_t NewBlocks = CountRuns(Markup, "<code>");
		EXPECT_GE(NewBlocks, Blocks) << Markup;
		Blocks = NewBlocks;
	}
	EXPECT_EQ(Blocks, 3u);
}

TEST(Streaming, AnOpenFenceIsAGrowingBlockFromItsCompleteOpeningLineOn)
{
	EXPECT_EQ(RenderShort("a\n`"), "<Paragraph>a</>");
	EXPECT_EQ(RenderShort("a\n```cp"), "<Paragraph>a</>");
	EXPECT_EQ(RenderShort("a\n```cpp\n"), "<Paragraph>a</>\n\n<code></>");
	EXPECT_EQ(RenderShort("a\n```cpp\nint"), "<Paragraph>a</>\n\n<code>int</>");
	EXPECT_EQ(RenderShort("a\n```cpp\nint\n"), "<Paragraph>a</>\n\n<code>int</>");
	EXPECT_EQ(RenderShort("a\n```cpp\nint\n``"), "<Paragraph>a</>\n\n<code>int__NL__``</>");
	EXPECT_EQ(RenderShort("a\n```cpp\nint\n```"), "<Paragraph>a</>\n\n<code>int</>");
	EXPECT_EQ(RenderShort("a\n```cpp\nint\n~~"), "<Paragraph>a</>\n\n<code>int__NL__~~</>");
	EXPECT_EQ(RenderShort("a\n```cpp\nint\n-"), "<Paragraph>a</>\n\n<code>int__NL__-</>");
}

TEST(Streaming, AListThatBeginsDoesNotMakeAHeadingOfTheTextAboveIt)
{
	for (const char* Begin : {"Items:\n-", "Items:\n- ", "Items:\n--", "> Items:\n> -", "Items:\n="})
	{
		EXPECT_EQ(RenderShort(Begin).find("Header"), std::string::npos) << Begin;
	}
	EXPECT_EQ(RenderShort("Items:\n- a"), "<Paragraph>Items:</>\n\n<UnorderedList>  \u2022 a</>");
	EXPECT_EQ(RenderShort("Title\n---"), "<Header2>Title</>");
}

TEST(Streaming, ATextOfOneLineIsShownWhateverItMayBecome)
{
	EXPECT_EQ(RenderShort("-"), "<UnorderedList>  \u2022 </>");
	EXPECT_EQ(RenderShort("``"), "<Paragraph>``</>");
	EXPECT_EQ(RenderShort("```not a fence```"), "<Paragraph.InlineCode>not a fence</>");
}

TEST(Streaming, AParserTakesOneTextAfterTheOther)
{
	UMarkdownParser* Parser = NewObject<UMarkdownParser>();
	for (const TCHAR* Text : {TEXT("*a*"), TEXT(""), TEXT("b")})
	{
		Parser->SetContent(Text);
		Parser->Parse();
	}
	EXPECT_EQ(Parser->RenderToHTML(), TEXT("<VorelMarkdown.Paragraph>b</>"));
}
