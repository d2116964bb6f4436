// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "FencedCode.h"

#include <algorithm>
#include <optional>

namespace
{
struct FFence
{
	// What is in front of each line of the block: "> " and blanks for list markers and indentation.
	std::string Prefix;
	std::string Marks;
	std::string Code;
	// In a list a line that is less indented ends the block.
	bool bInList = false;

	// Nothing for a line that is outside of the block.
	std::optional<std::string_view> Strip(std::string_view Line) const
	{
		bool bIndented = true;
		for (const char Character : Prefix)
		{
			const size_t Quote = Line.find_first_not_of(' ');
			if (Character == '>' && (Quote == std::string_view::npos || Line[Quote] != '>'))
			{
				return {};
			}
			const bool bBlank = Line.starts_with(' ');
			bIndented = bIndented && (Character == '>' || bBlank);
			Line.remove_prefix(Character == '>' ? Quote + 1 : bBlank ? 1 : 0);
		}
		const bool bEmpty = Line.find_first_not_of(" \t") == std::string_view::npos;
		return bInList && !bIndented && !bEmpty ? std::nullopt : std::optional(Line);
	}

	bool IsClosedBy(std::string_view Line) const
	{
		const size_t Begin = std::min(Line.find_first_not_of(' '), Line.size());
		const size_t End = std::min(Line.find_first_not_of(Marks[0], Begin), Line.size());
		return Begin < 4 && End - Begin >= Marks.size() && Line.find_first_not_of(" \t", End) == std::string_view::npos;
	}
};

// Behind the quotes, bullets and numbers that a line begins with, and the blanks around them.
size_t SkipContainers(const std::string& Line)
{
	size_t Content = 0;
	for (size_t At = 0; At < Line.size();)
	{
		Content = At = std::min(Line.find_first_not_of(' ', At), Line.size());
		const size_t Digits = Line.find_first_not_of("0123456789", At) - At;
		const size_t MarkerSize = Line[At] == '>' ? 1 : Digits > 0 ? Digits + 1 : 1;
		const bool bMarker = std::string_view(">-*+").find(Line[At]) != std::string_view::npos || (Digits > 0 && Line[At + Digits] == '.');
		if (!bMarker || (Line[At] != '>' && Line[At + MarkerSize] != ' '))
		{
			break;
		}
		At += MarkerSize;
	}
	return Content;
}

std::optional<FFence> Open(const std::string& Line)
{
	const size_t Begin = SkipContainers(Line);
	const size_t End = std::min(Line.find_first_not_of(Line[Begin], Begin), Line.size());
	const bool bTildes = Line[Begin] == '~';
	const bool bTicks = Line[Begin] == '`' && Line.find('`', End) == std::string::npos;
	if (End - Begin < 3 || !(bTildes || bTicks))
	{
		return {};
	}
	FFence Fence{Line.substr(0, Begin), Line.substr(Begin, End - Begin), "", Line.find_first_not_of(" >") < Begin};
	for (char& Character : Fence.Prefix)
	{
		Character = Character == '>' ? '>' : ' ';
	}
	return Fence;
}
} // namespace

std::vector<std::string> FindFencedCode(std::string_view Markdown)
{
	std::vector<std::string> Result;
	std::optional<FFence> Fence;
	const auto Close = [&]
	{
		Result.push_back(Fence->Code.substr(0, Fence->Code.empty() ? 0 : Fence->Code.size() - 1));
		Fence.reset();
	};
	while (!Markdown.empty())
	{
		const size_t End = std::min(Markdown.find('\n'), Markdown.size());
		const std::string_view Line = Markdown.substr(0, End);
		const bool bComplete = End < Markdown.size();
		const std::optional<std::string_view> Code = Fence ? Fence->Strip(Line) : std::nullopt;
		if (Code && !Fence->IsClosedBy(*Code))
		{
			Fence->Code.append(*Code) += '\n';
		}
		else if (Fence)
		{
			Close();
		}
		if (!Fence && !Code && bComplete)
		{
			Fence = Open(std::string(Line));
		}
		Markdown.remove_prefix(std::min(End + 1, Markdown.size()));
	}
	if (Fence)
	{
		Close();
	}
	return Result;
}
