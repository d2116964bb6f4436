// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "CodeBlockText.h"

#include "MarkupWriter.h"
#include <string>

namespace
{
size_t GetColumnBehind(size_t Column, char Byte)
{
	constexpr size_t TabWidth = 4;
	return Byte == '\t' ? (Column / TabWidth + 1) * TabWidth : Column + 1;
}

size_t CountColumns(std::string_view LineBeginning)
{
	size_t Columns = 0;
	for (char Byte : LineBeginning)
	{
		Columns = GetColumnBehind(Columns, Byte);
	}
	return Columns;
}

// The end of a line's beginning that covers the given number of columns, with blanks in place of a tab that belongs to it only in part.
std::string CutIndent(std::string_view LineBeginning, size_t Columns)
{
	const size_t AllColumns = CountColumns(LineBeginning);
	const size_t Start = AllColumns - std::min(Columns, AllColumns);
	size_t Column = 0;
	size_t Position = 0;
	while (Column < Start)
	{
		Column = GetColumnBehind(Column, LineBeginning[Position++]);
	}
	return std::string(Column - Start, ' ').append(LineBeginning.substr(Position));
}
} // namespace

void FCodeBlockText::Begin()
{
	LineStart = std::string_view::npos;
	Indent = 0;
	ContainerIndent = 0;
	PendingNewlines = 0;
	Writer.BeginCode();
}

void FCodeBlockText::Text(std::string_view Piece)
{
	if (IsFromSource(Piece))
	{
		const auto Position = static_cast<size_t>(Piece.data() - Source.data());
		LineStart = Source.rfind('\n', Position) + 1;
		ContainerIndent = CountColumns(Source.substr(LineStart, Position - LineStart)) - Indent;
		WriteIndent(Position);
		Writer.CodeText(Piece);
	}
	else if (Piece == "\n")
	{
		EndLine();
	}
	else
	{
		Indent += Piece.size();
	}
}

bool FCodeBlockText::IsFromSource(std::string_view Piece) const
{
	return Piece.data() >= Source.data() && Piece.data() < Source.data() + Source.size();
}

void FCodeBlockText::EndLine()
{
	const bool bKnown = LineStart != std::string_view::npos;
	const size_t LineEnd = bKnown ? std::min(Source.find('\n', LineStart), Source.size()) : 0;
	if (Indent > 0)
	{
		// In a list md4c 0.4.8 counts all blanks of a line that has nothing but too few of them.
		const size_t Columns = bKnown ? CountColumns(Source.substr(LineStart, LineEnd - LineStart)) : Indent;
		Indent = std::min(Indent, Columns - std::min(Columns, ContainerIndent));
		WriteIndent(LineEnd);
	}
	++PendingNewlines;
	if (bKnown)
	{
		LineStart = std::min(LineEnd + 1, Source.size());
	}
}

void FCodeBlockText::WriteIndent(size_t TextStart)
{
	WriteNewlines(PendingNewlines);
	PendingNewlines = 0;
	if (Indent > 0)
	{
		const bool bKnown = LineStart != std::string_view::npos;
		Writer.CodeText(bKnown ? CutIndent(Source.substr(LineStart, TextStart - LineStart), Indent) : std::string(Indent, ' '));
	}
	Indent = 0;
}

void FCodeBlockText::WriteNewlines(int32 Count)
{
	for (; Count > 0; --Count)
	{
		Writer.CodeNewline();
	}
}

void FCodeBlockText::End()
{
	WriteNewlines(PendingNewlines - 1);
	Writer.EndCode();
}
