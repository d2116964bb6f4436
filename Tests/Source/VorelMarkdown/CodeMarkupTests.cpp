// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupTestSupport.h"

#include <gtest/gtest.h>

namespace
{
struct FCase
{
	const char* Markdown;
	const char* Markup;
};

std::string ReadCode(const std::string& Markdown)
{
	std::string Code;
	for (const FShownRun& Run : ReadMarkup(RenderMarkup(Markdown)))
	{
		Code += Run.Name == "code" ? Run.Text : "";
	}
	return Code;
}
} // namespace

TEST(CodeMarkup, ABlockIsOneRunOnItsOwnLineWithRoomAroundIt)
{
	for (const FCase& Case : std::initializer_list<FCase>{
			 {"```\nint a;\nint b;\n```", "<code>int a;__NL__int b;</>"},
			 {"```\n```", "<code></>"},
			 {"a\n~~~\nx\n~~~\nb", "<Paragraph>a</>\n\n<code>x</>\n\n<Paragraph>b</>"},
			 {"# T\n\n    x\n", "<Header1>T</>\n\n<code>x</>"},
			 {"- ```\n  x\n  ```\n- b", "<UnorderedList>  \u2022 </>\n<code>x</>\n\n<UnorderedList>  \u2022 b</>"},
			 {"- a\n  ```\n  x\n  ```\n  b\n", "<UnorderedList>  \u2022 a</>\n\n<code>x</>\n\n<UnorderedList>    b</>"},
			 {"> `a`\n> ~~~\n> x\n", "<Blockquote.Paragraph>    </><Blockquote.Paragraph.InlineCode>a</>\n\n<code>x</>"},
			 {"```\na << b && \"c\" </> </Tag> &lt;\n```", "<code>a << b &amp;&amp; \"c\" &lt;/&gt; </Tag> &amp;lt;</>"},
		 })
	{
		EXPECT_EQ(RenderShort(Case.Markdown), Case.Markup) << Case.Markdown;
	}
}

TEST(CodeMarkup, ReadsBackAsItWasWritten)
{
	for (const char* Code :
		{"&amp; &lt;/&gt; </> <</>> &</>;", "<VorelMarkdown.Strong>a</> <code>b</>", "a\n\n\nb\n", "x\n\t\t\n \t x",
			"\n\ta\n\t \tb  \n\n\t\n  \n", "__NLx", "__nl_langinfo", "_NL__\n_NL__", "__N\nL__", "_\n_", "[a]: b", "| a |\n|-|-|", "~5 ~~"})
	{
		EXPECT_EQ(ReadCode("```\n" + std::string(Code) + "\n```\n"), Code);
	}
	EXPECT_EQ(ReadCode("```\r\na\r\n\r\nb\r\n```\r\n"), "a\n\nb");
}

TEST(CodeMarkup, OfBlanksAndTabsOnlyWhatIsBehindTheContainerIsCode)
{
	EXPECT_EQ(ReadCode("- ```\n\ta\n  \tb\n  ```\n"), "  a\n\tb");
	EXPECT_EQ(ReadCode("- - ```\n    a\n   \n     \n    b\n    ```\n"), "a\n\n \nb");
	EXPECT_EQ(ReadCode("> ```\n>\t\ta\n> ```\n"), "  \ta");
}
