// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupTestSupport.h"

#include "MarkdownParser.h"
#include <array>
#include <set>
#include <vector>

namespace
{
using FNames = std::set<std::string, std::less<>>;

void AddWithWords(FNames& Names, const std::string& Name, int Depth)
{
	Names.insert(Name);
	for (const char* Word : {".Emphasis", ".Strong", ".Strikethrough", ".Link", ".InlineCode", ".Image"})
	{
		if (Depth < 3 && Name.find(Word) == std::string::npos)
		{
			AddWithWords(Names, Name + Word, Depth + 1);
		}
	}
}

// The blocks that take inline words, in and outside of quotes; and those that exist alone.
const FNames& GetStyleNames()
{
	static const FNames Names = []
	{
		FNames Result;
		std::string Prefix = "VorelMarkdown.";
		for (int Depth = 0; Depth <= 4; ++Depth)
		{
			for (const char* Block :
				{"Header", "Header1", "Header2", "Header3", "Header4", "Header5", "Header6", "Paragraph", "OrderedList", "UnorderedList"})
			{
				AddWithWords(Result, Prefix + Block, 0);
			}
			Prefix += "Blockquote.";
		}
		AddWithWords(Result, "VorelMarkdown.Table", 0);
		Result.insert("VorelMarkdown.HorizontalRule");
		return Result;
	}();
	return Names;
}

bool IsEscape(std::string_view Text, bool bCode)
{
	return Text.starts_with("&amp;") || Text.starts_with("&lt;") || Text.starts_with("&gt;") || (!bCode && Text.starts_with("&quot;"));
}

std::string FindContentError(std::string_view Content, bool bCode)
{
	for (size_t Position = 0; Position < Content.size(); ++Position)
	{
		const auto Byte = static_cast<unsigned char>(Content[Position]);
		if ((Byte < 0x20 && Byte != '\t') || Byte == 0x7F)
		{
			return "a control character";
		}
		if (Byte == '&' && !IsEscape(Content.substr(Position), bCode))
		{
			return "a bare &";
		}
		if (!bCode && (Byte == '<' || Byte == '>' || Byte == '"'))
		{
			return "an unescaped character";
		}
	}
	return {};
}

// Takes one run off the line.
std::string FindRunError(std::string_view& Line)
{
	const size_t NameEnd = Line.find('>');
	const size_t ContentEnd = Line.find("</>");
	if (Line[0] != '<' || NameEnd == std::string_view::npos || ContentEnd == std::string_view::npos || ContentEnd < NameEnd)
	{
		return "text outside of a closed run";
	}
	const std::string_view Name = Line.substr(1, NameEnd - 1);
	if (Name != "code" && !GetStyleNames().contains(Name))
	{
		return "the name " + std::string(Name);
	}
	const std::string Error = FindContentError(Line.substr(NameEnd + 1, ContentEnd - NameEnd - 1), Name == "code");
	Line.remove_prefix(ContentEnd + 3);
	return Error;
}
} // namespace

std::string RenderMarkup(FStringView Markdown)
{
	UMarkdownParser* Parser = NewObject<UMarkdownParser>();
	Parser->SetContent(FString(Markdown));
	Parser->Parse();
	const std::string Markup = TCHAR_TO_UTF8(Parser->RenderToHTML());
	Parser->MarkAsGarbage();
	return Markup;
}

std::string RenderMarkup(std::string_view Markdown)
{
	return RenderMarkup(FUTF8ToTCHAR(Markdown.data(), static_cast<int32>(Markdown.size())));
}

std::string RenderShort(std::string_view Markdown)
{
	constexpr std::string_view Prefix = "<VorelMarkdown.";
	std::string Markup = RenderMarkup(Markdown);
	for (size_t Position = 0; (Position = Markup.find(Prefix, Position)) != std::string::npos; ++Position)
	{
		Markup.erase(Position + 1, Prefix.size() - 1);
	}
	return Markup;
}

std::string FindMarkupError(std::string_view Markup)
{
	while (!Markup.empty())
	{
		const size_t LineEnd = std::min(Markup.find('\n'), Markup.size());
		std::string_view Line = Markup.substr(0, LineEnd);
		while (!Line.empty())
		{
			const std::string Error = FindRunError(Line);
			if (!Error.empty())
			{
				return Error + ": " + std::string(Markup.substr(0, LineEnd));
			}
		}
		Markup.remove_prefix(std::min(LineEnd + 1, Markup.size()));
	}
	return {};
}

std::string Repeat(std::string_view Text, size_t Count)
{
	std::string Result;
	Result.reserve(Text.size() * Count);
	for (size_t Index = 0; Index < Count; ++Index)
	{
		Result += Text;
	}
	return Result;
}
