// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownParser.h"
#include "MarkdownSuite.h"
#include "MarkupTestSupport.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>

namespace
{
// More would take long, since a document is rendered once per character.
constexpr size_t MaxSize = 1800;

std::string ReadFile(const std::filesystem::path& Path)
{
	std::ifstream File(Path);
	EXPECT_TRUE(File.is_open()) << Path;
	std::stringstream Text;
	Text << File.rdbuf();
	return Text.str();
}

void AddFolder(std::vector<std::string>& Documents, const char* Folder)
{
	for (const auto& Entry : std::filesystem::directory_iterator(std::filesystem::path(VOREL_PROJECT_FOLDER) / Folder))
	{
		Documents.push_back(ReadFile(Entry.path()).substr(0, MaxSize));
	}
}

// Each chapter without indented code is one, up to the given number of them all.
void AddChapters(std::vector<std::string>& Documents, const std::string& Book, size_t MaxDocuments)
{
	for (size_t Begin = 0; Begin < Book.size() && Documents.size() < MaxDocuments;)
	{
		const size_t End = std::min(Book.find("\n\n## ", Begin + 1), Book.size());
		const std::string Chapter = Book.substr(Begin, std::min(End - Begin, MaxSize));
		if (Chapter.find("\n\n    ") == std::string::npos)
		{
			Documents.push_back(Chapter);
		}
		Begin = End;
	}
}

std::vector<std::string> GetDocuments()
{
	constexpr size_t Count = 50;
	std::vector<std::string> Documents;
	AddFolder(Documents, "Tests/Source/VorelMarkdown/Answers");
	AddFolder(Documents, "Source/VorelService/Content/Guide");
	AddChapters(Documents, LoadSuiteText("commonmark"), Count);
	EXPECT_GE(Documents.size(), Count);
	return Documents;
}

// A fenced block of code, read line by line. Its lines are indented with blanks, and closed before a list around it ends.
struct FFence
{
	// What is in front of each line: "> ", and blanks for list markers and indentation.
	std::string Prefix;
	std::string Marks;
	std::string Code;

	static std::optional<FFence> Open(std::string_view Line)
	{
		const size_t Begin = std::min(Line.find_first_not_of(" >-*+0123456789."), Line.size());
		const size_t End = std::min(Line.find_first_not_of(Line[Begin], Begin), Line.size());
		const bool bTicks = Line[Begin] == '`' && Line.find('`', End) == std::string_view::npos;
		if (End - Begin < 3 || !(bTicks || Line[Begin] == '~'))
		{
			return {};
		}
		FFence Fence{std::string(Line.substr(0, Begin)), std::string(Line.substr(Begin, End - Begin)), ""};
		std::ranges::replace_if(
			Fence.Prefix, [](char Character) { return Character != '>'; }, ' ');
		return Fence;
	}

	// Nothing for a line that is outside of the quotes.
	std::optional<std::string_view> Strip(std::string_view Line) const
	{
		for (const char Character : Prefix)
		{
			const size_t Quote = Line.find_first_not_of(' ');
			if (Character == '>' && (Quote == std::string_view::npos || Line[Quote] != '>'))
			{
				return {};
			}
			Line.remove_prefix(Character == '>' ? Quote + 1 : Line.starts_with(' ') ? 1 : 0);
		}
		return Line;
	}

	bool IsClosedBy(std::string_view Line) const
	{
		const size_t Begin = std::min(Line.find_first_not_of(' '), Line.size());
		const size_t End = std::min(Line.find_first_not_of(Marks[0], Begin), Line.size());
		return Begin < 4 && End - Begin >= Marks.size() && Line.find_first_not_of(" \t", End) == std::string_view::npos;
	}
};

// The code of all fenced blocks, the last of which may still be open, without their last newlines.
std::vector<std::string> FindFencedCode(const std::string& Markdown)
{
	std::vector<std::string> Result;
	std::optional<FFence> Fence;
	std::istringstream Lines(Markdown);
	const auto Close = [&]
	{
		Result.push_back(Fence->Code.substr(0, Fence->Code.empty() ? 0 : Fence->Code.size() - 1));
		Fence.reset();
	};
	for (std::string Line; std::getline(Lines, Line);)
	{
		const std::optional<std::string_view> Code = Fence ? Fence->Strip(Line) : std::nullopt;
		if (Code && !Fence->IsClosedBy(*Code))
		{
			Fence->Code.append(*Code) += '\n';
		}
		else if (Fence)
		{
			Close();
		}
		if (!Fence && !Code && !Lines.eof())
		{
			Fence = FFence::Open(Line);
		}
	}
	if (Fence)
	{
		Close();
	}
	return Result;
}

bool IsCharacterStart(char Byte)
{
	return (static_cast<unsigned char>(Byte) & 0xC0) != 0x80;
}

// In a list md4c 0.4.8 takes a beginning of the next line's indentation for code.
std::vector<std::string> WithoutLastBlanks(std::vector<std::string> Code)
{
	if (!Code.empty())
	{
		Code.back().erase(Code.back().find_last_not_of(' ') + 1);
	}
	return Code;
}

// Returns whether it is.
bool ExpectGoodMarkup(const std::string& Text)
{
	const std::vector<FShownRun> Runs = ReadMarkup(RenderMarkup(Text));
	EXPECT_EQ(FindMarkupError(Runs), "");
	std::vector<std::string> Code;
	for (size_t Index = 0; Index < Runs.size(); ++Index)
	{
		if (Runs[Index].Name == "code")
		{
			Code.push_back(Runs[Index].Text);
			continue;
		}
		const bool bLineStart = Index == 0 || Runs[Index - 1].Name.empty();
		EXPECT_FALSE(bLineStart && (Runs[Index].Text.starts_with("```") || Runs[Index].Text.starts_with("~~~"))) << Runs[Index].Text;
	}
	EXPECT_EQ(WithoutLastBlanks(Code), WithoutLastBlanks(FindFencedCode(Text)));
	return !testing::Test::HasFailure();
}
} // namespace

TEST(Streaming, EveryPrefixOfFiftyDocumentsIsReadInFullAndKeepsItsCode)
{
	for (const std::string& Document : GetDocuments())
	{
		for (size_t Length = 1; Length <= Document.size(); ++Length)
		{
			if (Length == Document.size() || IsCharacterStart(Document[Length]))
			{
				const std::string Prefix = Document.substr(0, Length);
				ASSERT_TRUE(ExpectGoodMarkup(Prefix)) << Prefix;
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
