// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TableRow.h"

#include <algorithm>

namespace
{
std::string_view TrimBlanks(std::string_view Text)
{
	const size_t Begin = std::min(Text.find_first_not_of(" \t"), Text.size());
	return Text.substr(Begin, Text.find_last_not_of(" \t") + 1 - Begin);
}

// A dash or more, with a colon on either side or none.
bool IsDelimiterCell(std::string_view Cell)
{
	Cell = TrimBlanks(Cell);
	if (Cell.starts_with(':'))
	{
		Cell.remove_prefix(1);
	}
	if (Cell.ends_with(':'))
	{
		Cell.remove_suffix(1);
	}
	return !Cell.empty() && Cell.find_first_not_of('-') == std::string_view::npos;
}

// The position behind the code that begins with the backtick at Position, or behind its backticks where nothing closes them.
size_t SkipCode(std::string_view Line, size_t Position)
{
	const size_t Open = std::min(Line.find_first_not_of('`', Position), Line.size());
	for (size_t Close = Line.find('`', Open); Close != std::string_view::npos;)
	{
		const size_t CloseEnd = std::min(Line.find_first_not_of('`', Close), Line.size());
		if (CloseEnd - Close == Open - Position)
		{
			return CloseEnd;
		}
		Close = Line.find('`', CloseEnd);
	}
	return Open;
}
} // namespace

size_t CountDeclaredColumns(std::string_view Line)
{
	Line = TrimBlanks(Line);
	if (Line.find_first_not_of("|:- \t") != std::string_view::npos || Line.find('|') == std::string_view::npos)
	{
		return 0;
	}
	Line.remove_prefix(Line.starts_with('|') ? 1 : 0);
	Line.remove_suffix(Line.ends_with('|') ? 1 : 0);
	size_t Columns = 1;
	for (size_t Pipe; (Pipe = Line.find('|')) != std::string_view::npos; Line.remove_prefix(Pipe + 1), ++Columns)
	{
		if (!IsDelimiterCell(Line.substr(0, Pipe)))
		{
			return 0;
		}
	}
	return IsDelimiterCell(Line) ? Columns : 0;
}

bool HasShortCell(std::string_view DelimiterRow)
{
	constexpr size_t MinSize = 3;
	for (size_t Position = 0; (Position = DelimiterRow.find_first_of(":-", Position)) != std::string_view::npos;)
	{
		const size_t End = std::min(DelimiterRow.find_first_not_of(":-", Position), DelimiterRow.size());
		if (End - Position < MinSize)
		{
			return true;
		}
		Position = End;
	}
	return false;
}

size_t CountCells(std::string_view Line)
{
	Line = TrimBlanks(Line);
	Line.remove_prefix(Line.starts_with('|') ? 1 : 0);
	size_t Cells = Line.empty() ? 0 : 1;
	for (size_t Position = 0; Position < Line.size();)
	{
		if (Line[Position] == '`')
		{
			Position = SkipCode(Line, Position);
			continue;
		}
		Cells += Line[Position] == '|' && Position + 1 < Line.size() ? 1 : 0;
		Position += Line[Position] == '\\' ? 2 : 1;
	}
	return Cells;
}
