// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownSource.h"

#include "InlineLimits.h"
#include "LinePrefix.h"
#include "TableRepair.h"
#include "TableRow.h"
#include <algorithm>

namespace
{
// Blank lines cost md4c a step per open list. A list this deep needs a prefix this long, and is no list that someone wrote.
constexpr size_t MaxListColumn = 256;

// Each use of a link reference costs md4c a walk over its definition; this many steps take some 50 ms.
constexpr uint64 MaxReferenceSteps = 50'000'000;

// Each row of a table costs a step per column, however short it is.
constexpr size_t MaxColumns = 32;

// Looking for code in a longer one would take too long.
constexpr size_t MaxTableHeadSize = 10'000;

bool IsHighSurrogate(char32_t Unit)
{
	return (Unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(char32_t Unit)
{
	return (Unit & 0xFC00) == 0xDC00;
}

// Noncharacters that stand for these.
constexpr char32_t FirstVeil = 0xFDD0;
constexpr std::u32string_view Veiled = U"~[:.";

bool IsVeil(char32_t CodePoint)
{
	return CodePoint >= FirstVeil && CodePoint < FirstVeil + Veiled.size();
}

template <typename VisitorType>
void ForEachLine(std::string_view Text, VisitorType Visit)
{
	for (size_t Start = 0; Start < Text.size();)
	{
		const size_t End = std::min(Text.find('\n', Start), Text.size());
		Visit(Start, Text.substr(Start, End - Start));
		Start = End + 1;
	}
}

// Where a list marker stands too deep, or the content of the line: whichever comes first.
size_t FindDeepListOrContent(std::string_view Line, bool& bOutDeepList)
{
	for (size_t Position = 0;;)
	{
		Position = SkipBlanksAndQuotes(Line, Position);
		const size_t Behind = SkipListMarker(Line, Position);
		bOutDeepList = Behind != Position && Position > MaxListColumn;
		if (bOutDeepList || Behind == Position)
		{
			return Position;
		}
		Position = Behind;
	}
}

bool StartsWithBracket(std::string_view Line, size_t Position)
{
	return Position < Line.size() && Line[Position] == '[';
}

// A definition starts at a line's "[" and ends before the next empty line.
bool NeedsReferenceGuard(std::string_view Text)
{
	if (Text.find("]:") == std::string_view::npos)
	{
		return false;
	}
	size_t DefinitionStart = Text.size();
	size_t LongestDefinition = 0;
	ForEachLine(Text,
		[&](size_t LineStart, std::string_view Line)
		{
			bool bDeepList = false;
			const size_t Position = FindDeepListOrContent(Line, bDeepList);
			if (Position == Line.size())
			{
				DefinitionStart = Text.size();
			}
			else if (DefinitionStart > LineStart && StartsWithBracket(Line, Position))
			{
				DefinitionStart = LineStart;
			}
			LongestDefinition = std::max(LongestDefinition, LineStart + Line.size() - std::min(DefinitionStart, LineStart + Line.size()));
		});
	const auto Uses = static_cast<uint64>(std::count(Text.begin(), Text.end(), ']'));
	return LongestDefinition * Uses > MaxReferenceSteps;
}

// md4c takes any delimiter row, and drops the cells of a head that has more than the row declares.
bool IsFalseDelimiterRow(std::string_view Content, std::string_view Head)
{
	if (Content.empty() || std::string_view("|:-").find(Content[0]) == std::string_view::npos)
	{
		return false;
	}
	const size_t Columns = CountDeclaredColumns(Content);
	return Columns > MaxColumns || (Columns > 0 && (Head.size() > MaxTableHeadSize || CountCells(Head) != Columns));
}

// Finds what must not begin a construct, line by line.
class FGuardFinder
{
public:
	explicit FGuardFinder(std::string_view Text)
		: bGuardReferences(NeedsReferenceGuard(Text))
	{
	}

	// Where a guard belongs in the line, or npos.
	size_t FindIn(std::string_view Line)
	{
		bool bDeepList = false;
		const size_t Position = FindDeepListOrContent(Line, bDeepList);
		const std::string_view Content = Line.substr(Position);
		const bool bReference = bGuardReferences && StartsWithBracket(Line, Position);
		const bool bGuard = bDeepList || bReference || IsFalseDelimiterRow(Content, LastContent);
		LastContent = Content;
		return bGuard ? Position : std::string_view::npos;
	}

private:
	const bool bGuardReferences;
	std::string_view LastContent;
};
} // namespace

FMarkdownSource::FMarkdownSource(FStringView Markdown)
{
	Convert(Markdown);
	GuardLineStarts();
	RepairTables(Bytes);
}

void FMarkdownSource::Convert(FStringView Markdown)
{
	const TCHAR* At = Markdown.begin();
	const TCHAR* const End = Markdown.end();
	if (At != End && *At == 0xFEFF)
	{
		++At;
	}
	Bytes.reserve(static_cast<size_t>(End - At) + static_cast<size_t>(End - At) / 8);
	FInlineLimits Limits(Markdown);
	Limits.BeginLine(0);
	while (At != End)
	{
		const auto Position = static_cast<int32>(At - Markdown.begin());
		char32_t CodePoint = *At++;
		if (IsHighSurrogate(CodePoint) && At != End && IsLowSurrogate(*At))
		{
			CodePoint = 0x10000 + ((CodePoint & 0x3FF) << 10 | (*At++ & 0x3FF));
		}
		else if (CodePoint == '\r' && At != End && *At == '\n')
		{
			++At;
		}
		CodePoint = Limits.MustBeText(Position) ? FirstVeil + static_cast<char32_t>(Veiled.find(CodePoint)) : Sanitize(CodePoint);
		AppendUtf8(Bytes, CodePoint);
		if (CodePoint == '\n')
		{
			Limits.BeginLine(static_cast<int32>(At - Markdown.begin()));
		}
	}
}

void FMarkdownSource::GuardLineStarts()
{
	FGuardFinder Finder(Bytes);
	std::string Guarded;
	size_t Copied = 0;
	ForEachLine(Bytes,
		[&](size_t LineStart, std::string_view Line)
		{
			const size_t Position = Finder.FindIn(Line);
			if (Position != std::string_view::npos)
			{
				Guarded.append(Bytes, Copied, LineStart + Position - Copied);
				Guarded.push_back(GuardMark);
				Copied = LineStart + Position;
			}
		});
	if (Copied > 0 || !Guarded.empty())
	{
		Guarded.append(Bytes, Copied);
		Bytes = MoveTemp(Guarded);
	}
}

char32_t FMarkdownSource::Sanitize(char32_t CodePoint)
{
	if (CodePoint == '\t' || CodePoint == '\n')
	{
		return CodePoint;
	}
	// Vertical tab, form feed, carriage return, next line, line and paragraph separator: the text layout breaks the line at each of them.
	if ((CodePoint >= 0x0B && CodePoint <= 0x0D) || CodePoint == 0x85 || CodePoint == 0x2028 || CodePoint == 0x2029)
	{
		return '\n';
	}
	const bool bControl = CodePoint < 0x20 || (CodePoint >= 0x7F && CodePoint < 0xA0);
	const bool bLoneSurrogate = CodePoint >= 0xD800 && CodePoint < 0xE000;
	return bControl || bLoneSurrogate || IsVeil(CodePoint) ? ReplacementCharacter : CodePoint;
}

char32_t FMarkdownSource::Unveil(char32_t CodePoint)
{
	return IsVeil(CodePoint) ? Veiled[CodePoint - FirstVeil] : CodePoint;
}

void FMarkdownSource::AppendUtf8(std::string& Out, char32_t CodePoint)
{
	const auto AddTail = [&Out, CodePoint](int Shift)
	{
		Out.push_back(static_cast<char>(0x80 | (CodePoint >> Shift & 0x3F)));
	};
	if (CodePoint < 0x80)
	{
		Out.push_back(static_cast<char>(CodePoint));
	}
	else if (CodePoint < 0x800)
	{
		Out.push_back(static_cast<char>(0xC0 | CodePoint >> 6));
		AddTail(0);
	}
	else if (CodePoint < 0x10000)
	{
		Out.push_back(static_cast<char>(0xE0 | CodePoint >> 12));
		AddTail(6);
		AddTail(0);
	}
	else
	{
		Out.push_back(static_cast<char>(0xF0 | CodePoint >> 18));
		AddTail(12);
		AddTail(6);
		AddTail(0);
	}
}
