// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownSuite.h"
#include "MarkupTestSupport.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace
{
// More would take long, since a document is rendered once per character.
constexpr size_t MaxSize = 1800;

void AddFolder(std::vector<std::string>& Documents, const char* Folder)
{
	for (const auto& Entry : std::filesystem::directory_iterator(std::filesystem::path(VOREL_PROJECT_FOLDER) / Folder))
	{
		Documents.push_back(LoadText(Entry.path().string()).substr(0, MaxSize));
	}
}

// Answers, the guide, and of a book as many chapters as make fifty.
std::vector<std::string> GetDocuments()
{
	constexpr size_t Count = 50;
	std::vector<std::string> Documents;
	AddFolder(Documents, "Tests/Source/VorelMarkdown/Answers");
	AddFolder(Documents, "Source/VorelService/Content/Guide");
	const std::string Book = LoadText(GetSuitePath("commonmark"));
	for (size_t Begin = 0; Begin < Book.size() && Documents.size() < Count;)
	{
		const size_t End = std::min(Book.find("\n\n## ", Begin + 1), Book.size());
		Documents.push_back(Book.substr(Begin, std::min(End - Begin, MaxSize)));
		Begin = End;
	}
	EXPECT_GE(Documents.size(), Count);
	return Documents;
}

bool IsCharacterStart(char Byte)
{
	return (static_cast<unsigned char>(Byte) & 0xC0) != 0x80;
}

// The code of all blocks. Of the last one without what could become its closing fence, or the indentation of a line that is not yet there.
std::vector<std::string> FindCode(const std::vector<FShownRun>& Runs)
{
	std::vector<std::string> Code;
	for (const FShownRun& Run : Runs)
	{
		if (Run.Name == "code")
		{
			Code.push_back(Run.Text);
		}
	}
	if (!Code.empty())
	{
		Code.back().erase(Code.back().find_last_not_of(" >\n`~") + 1);
	}
	return Code;
}

// What was shown as code stays it and only grows, and a fence is never shown as text.
void ExpectCodeGrows(const std::vector<std::string>& Before, const std::vector<FShownRun>& Runs)
{
	const std::vector<std::string> Code = FindCode(Runs);
	ASSERT_GE(Code.size(), Before.size());
	for (size_t Index = 0; Index < Before.size(); ++Index)
	{
		const bool bMayGrow = Index + 1 == Before.size();
		EXPECT_TRUE(bMayGrow ? Code[Index].starts_with(Before[Index]) : Code[Index] == Before[Index]) << Code[Index];
	}
	for (size_t Index = 0; Index < Runs.size(); ++Index)
	{
		const bool bLineStart = Index == 0 || Runs[Index - 1].Name.empty();
		const bool bFence = Runs[Index].Text.starts_with("```") || Runs[Index].Text.starts_with("~~~");
		EXPECT_FALSE(bLineStart && bFence && Runs[Index].Name != "code") << Runs[Index].Text;
	}
}
} // namespace

TEST(Streaming, EveryPrefixOfFiftyDocumentsIsReadInFullAndKeepsItsCode)
{
	for (const std::string& Document : GetDocuments())
	{
		std::vector<std::string> Code;
		for (size_t Length = 1; Length <= Document.size(); ++Length)
		{
			if (Length == Document.size() || IsCharacterStart(Document[Length]))
			{
				const std::vector<FShownRun> Runs = ReadMarkup(RenderMarkup(Document.substr(0, Length)));
				EXPECT_EQ(FindMarkupError(Runs), "");
				ExpectCodeGrows(Code, Runs);
				ASSERT_FALSE(HasFailure()) << Document.substr(0, Length);
				Code = FindCode(Runs);
			}
		}
	}
}

TEST(Streaming, OfALineThatIsNotYetToldApartNothingIsShown)
{
	for (const char* Begin : {"a\n`", "a\n```cp", "> a\n> ~~~x", "a:\n-", "a:\n- ", "a:\n--", "> a:\n> -", "a\n="})
	{
		const std::string Markup = RenderShort(Begin);
		EXPECT_EQ(Markup.find_first_of("`~-="), std::string::npos) << Begin;
		EXPECT_EQ(Markup.find("Header"), std::string::npos) << Begin;
	}
	EXPECT_EQ(RenderShort("|a|b|\n|-"), "<Paragraph>|a|b|</>");
	for (const char* Task : {"- [", "- [ ", "- [x", "- [ ]"})
	{
		EXPECT_EQ(RenderShort(Task), "<UnorderedList>  \u2022 </>");
	}
	EXPECT_EQ(RenderShort("- [y"), "<UnorderedList>  \u2022 [y</>");
	EXPECT_EQ(RenderShort("a:\n- b"), "<Paragraph>a:</>\n\n<UnorderedList>  \u2022 b</>");
	EXPECT_EQ(RenderShort("Title\n---"), "<Header2>Title</>");
}

TEST(Streaming, ATextOfOneLineAndALineOfCodeAreShownWhateverTheyMayBecome)
{
	EXPECT_EQ(RenderShort("-"), "<UnorderedList>  \u2022 </>");
	EXPECT_EQ(RenderShort("``"), "<Paragraph>``</>");
	EXPECT_EQ(RenderShort("```not a fence```"), "<Paragraph.InlineCode>not a fence</>");
	for (const char* Line : {"``", "~~", "```x", "-", "|-"})
	{
		EXPECT_EQ(RenderShort("~~~\n|a|b|\n" + std::string(Line)), "<code>|a|b|__NL__" + std::string(Line) + "</>");
		EXPECT_EQ(RenderShort("<!--\n|a|b|\n" + std::string(Line)),
			"<Paragraph>&lt;!--</>\n<Paragraph>|a|b|</>\n<Paragraph>" + std::string(Line) + "</>");
	}
}
