// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "LineGuards.h"

#include "LinePrefix.h"
#include "MarkdownSource.h"
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

void GuardLineStarts(std::string& Source)
{
	FGuardFinder Finder(Source);
	std::string Guarded;
	size_t Copied = 0;
	ForEachLine(Source,
		[&](size_t LineStart, std::string_view Line)
		{
			const size_t Position = Finder.FindIn(Line);
			if (Position != std::string_view::npos)
			{
				Guarded.append(Source, Copied, LineStart + Position - Copied);
				Guarded.push_back(FMarkdownSource::GuardMark);
				Copied = LineStart + Position;
			}
		});
	if (Copied > 0 || !Guarded.empty())
	{
		Guarded.append(Source, Copied);
		Source = MoveTemp(Guarded);
	}
}
