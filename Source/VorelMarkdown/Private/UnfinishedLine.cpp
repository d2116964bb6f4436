// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "UnfinishedLine.h"

#include "BlockProbe.h"
#include "LinePrefix.h"
#include "MarkdownSource.h"
#include "TableRow.h"
#include <algorithm>
#include <string>

namespace
{
bool ConsistsOf(std::string_view Text, char Character)
{
	return Text.find_first_not_of(Character) == std::string_view::npos;
}

std::string_view TrimEnd(std::string_view Text)
{
	return Text.substr(0, Text.find_last_not_of(" \t") + 1);
}

// A delimiter row with too few columns as yet is guarded.
std::string_view SkipGuard(std::string_view Content)
{
	return Content.substr(Content.starts_with(FMarkdownSource::GuardMark) ? 1 : 0);
}

constexpr size_t FenceLength = 3;

// What an opening fence may look like before its line has ended.
bool MayOpenFence(std::string_view Content)
{
	if (Content.empty() || (Content[0] != '`' && Content[0] != '~'))
	{
		return false;
	}
	const size_t Length = std::min(Content.find_first_not_of(Content[0]), Content.size());
	const bool bInfoHasBacktick = Content.find('`', Length) != std::string_view::npos;
	return Length == Content.size() || (Length >= FenceLength && !(Content[0] == '`' && bInfoHasBacktick));
}

bool MayUnderlineHeading(std::string_view Content)
{
	return !Content.empty() && Content.size() < FenceLength && (ConsistsOf(Content, '-') || ConsistsOf(Content, '='));
}

bool MayBeTask(std::string_view Content)
{
	static constexpr std::string_view Boxes[] = {"[ ]", "[x]", "[X]"};
	return !Content.empty() && std::ranges::any_of(Boxes, [Content](std::string_view Box) { return Box.starts_with(Content); });
}

bool MayDeclareColumns(std::string_view Content, std::string_view Head)
{
	const bool bBeginning = !Content.empty() && Content.find_first_not_of("|:- \t") == std::string_view::npos;
	return bBeginning && Head.find('|') != std::string_view::npos && CountDeclaredColumns(Content) < CountCells(Head);
}

std::string_view GetLineBefore(std::string_view Source, size_t LineStart)
{
	const std::string_view Before = Source.substr(0, LineStart - 1);
	return Before.substr(Before.rfind('\n') + 1);
}

// Whether code or HTML goes on behind the text, which ends where a line's content begins.
bool EndsInVerbatim(std::string_view Text)
{
	const std::string Probed = std::string(Text) + "x";
	TArray<FProbedStretch> End = {{Text.size(), Probed.size()}};
	ProbeBlocks(Probed, End);
	return End[0].Block == MD_BLOCK_CODE || End[0].Block == MD_BLOCK_HTML;
}
} // namespace

size_t GetSettledSize(std::string_view Source)
{
	const size_t LineStart = Source.rfind('\n') + 1;
	const std::string_view Line = TrimEnd(Source.substr(LineStart));
	const size_t PrefixSize = SkipLinePrefix(Line);
	const std::string_view Content = SkipGuard(Line.substr(PrefixSize));
	const bool bFirstLine = LineStart == 0;

	const bool bFence = MayOpenFence(Content) && !(bFirstLine && Content.size() < FenceLength);
	const bool bUnderline = !bFirstLine && (MayUnderlineHeading(Line.substr(SkipBlanksAndQuotes(Line, 0))) ||
											   MayDeclareColumns(Content, GetLineBefore(Source, LineStart)));
	const bool bTask = PrefixSize > SkipBlanksAndQuotes(Line, 0) && MayBeTask(Content);
	const bool bUnsettled = (bFence || bUnderline || bTask) && !EndsInVerbatim(Source.substr(0, LineStart + PrefixSize));
	return !bUnsettled ? Source.size() : bTask ? LineStart + PrefixSize : LineStart;
}
