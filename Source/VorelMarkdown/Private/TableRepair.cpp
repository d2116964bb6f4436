// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TableRepair.h"

#include "BlockProbe.h"
#include "LinePrefix.h"
#include "TableRow.h"
#include <algorithm>

namespace
{
struct FLine
{
	size_t Begin = 0;
	size_t End = 0;
};

// The line above the head, the head, and the delimiter row.
struct FTable
{
	FLine Above;
	FLine Head;
	FLine Row;
};

std::string_view GetText(std::string_view Source, const FLine& Line)
{
	return Source.substr(Line.Begin, Line.End - Line.Begin);
}

std::string_view GetContent(std::string_view Source, const FLine& Line)
{
	const std::string_view Text = GetText(Source, Line);
	return Text.substr(SkipLinePrefix(Text));
}

std::string_view GetQuotes(std::string_view Source, const FLine& Line)
{
	const std::string_view Text = GetText(Source, Line);
	return Text.substr(0, SkipBlanksAndQuotes(Text, 0));
}

bool MayNeedRepair(std::string_view Source, const FTable& Table)
{
	const std::string_view Text = GetText(Source, Table.Row);
	const std::string_view Row = Text.substr(GetQuotes(Source, Table.Row).size());
	if (Row.empty() || std::string_view("|:-").find(Row[0]) == std::string_view::npos)
	{
		return false;
	}
	const size_t Columns = CountDeclaredColumns(Row);
	return Columns > 0 && CountCells(GetContent(Source, Table.Head)) == Columns &&
		   (HasShortCell(Row) || !GetContent(Source, Table.Above).empty());
}

TArray<FTable> FindTables(std::string_view Source)
{
	TArray<FTable> Tables;
	FTable Last;
	for (size_t Begin = 0; Begin < Source.size(); Begin = Last.Row.End + 1)
	{
		Last = {Last.Head, Last.Row, {Begin, std::min(Source.find('\n', Begin), Source.size())}};
		if (MayNeedRepair(Source, Last))
		{
			Tables.Add(Last);
		}
	}
	return Tables;
}

// The reader does not announce the paragraphs of a tight list, and the row of what is a table already is no text.
bool IsParagraph(MD_BLOCKTYPE Block)
{
	return Block == MD_BLOCK_P || Block == MD_BLOCK_LI;
}

void AppendRepaired(std::string& Out, std::string_view Source, const FTable& Table, bool bPartOfParagraph)
{
	if (bPartOfParagraph)
	{
		Out.append(GetQuotes(Source, Table.Head)) += '\n';
	}
	Out.append(Source.substr(Table.Head.Begin, Table.Row.Begin - Table.Head.Begin)).append(GetQuotes(Source, Table.Row));
	for (size_t Column = CountDeclaredColumns(GetContent(Source, Table.Row)); Column > 0; --Column)
	{
		Out += "|---";
	}
	Out += '|';
}
} // namespace

void RepairTables(std::string& Source)
{
	const TArray<FTable> Tables = FindTables(Source);
	if (Tables.IsEmpty())
	{
		return;
	}
	TArray<FProbedStretch> Above;
	TArray<FProbedStretch> Rows;
	for (const FTable& Table : Tables)
	{
		Above.Add({Table.Above.Begin, Table.Above.End});
		Rows.Add({Table.Row.Begin, Table.Row.End});
	}
	ProbeBlocks(Source, Above);
	ProbeBlocks(Source, Rows);

	std::string Repaired;
	size_t Copied = 0;
	for (int32 Index = 0; Index < Tables.Num(); ++Index)
	{
		const FTable& Table = Tables[Index];
		if (IsParagraph(Rows[Index].Block) && Copied <= Table.Head.Begin)
		{
			Repaired.append(Source, Copied, Table.Head.Begin - Copied);
			AppendRepaired(Repaired, Source, Table, Above[Index].BlockNumber == Rows[Index].BlockNumber);
			Copied = Table.Row.End;
		}
	}
	if (Copied > 0)
	{
		Source = Repaired.append(Source, Copied);
	}
}
