// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "BlockStack.h"

namespace
{
constexpr std::string_view Bullet = "\u2022";

constexpr int32 MarkerIndent = 2;
constexpr int32 QuoteIndent = 4;

// However deep the nesting, lines stay readable and the markup in proportion to its source.
constexpr int32 MaxIndent = 40;

// In the proportional face of messages a digit is about as wide as two blanks, a task's box as three, and a bullet or a point as one.
int32 GetWidthInBlanks(bool bBullet, int32 Digits, bool bTask)
{
	const int32 MarkWidth = bBullet ? (bTask ? 3 : 1) : 2 * Digits + (bTask ? 5 : 1);
	return MarkWidth + 1;
}
} // namespace

FBlockStack::FContainer& FBlockStack::Push()
{
	BeginBlock();
	FContainer Container = Containers.Last();
	Container.bTight = false;
	Container.bHasBlock = false;
	return Containers.Add_GetRef(Container);
}

void FBlockStack::EnterQuote()
{
	FContainer& Quote = Push();
	Quote.TextBlock = EMarkupBlock::Paragraph;
	Quote.Indent = FMath::Min(Quote.Indent + QuoteIndent, MaxIndent);
	Quote.QuoteDepth = FMath::Min<uint8>(Quote.QuoteDepth + 1, FMarkupStyle::MaxQuoteDepth);
}

FBlockStack::FContainer& FBlockStack::PushList(EMarkupBlock TextBlock, bool bTight)
{
	FContainer& List = Push();
	List.TextBlock = TextBlock;
	List.bTight = bTight;
	return List;
}

void FBlockStack::EnterBulletList(bool bTight)
{
	PushList(EMarkupBlock::UnorderedList, bTight).Delimiter = 0;
}

void FBlockStack::EnterNumberedList(bool bTight, uint32 FirstNumber, char Delimiter)
{
	FContainer& List = PushList(EMarkupBlock::OrderedList, bTight);
	List.Delimiter = Delimiter;
	List.NextNumber = FirstNumber;
}

void FBlockStack::EnterItem(std::string_view TaskBox)
{
	FContainer& List = Containers.Last();
	const bool bTight = List.bTight;
	const bool bBullet = List.Delimiter == 0;
	const std::string Number = bBullet ? std::string() : std::to_string(List.NextNumber++);
	FContainer& Item = Push();
	Item.bTight = bTight;

	Markers.append(static_cast<size_t>(Markers.empty() ? Item.Indent + MarkerIndent : MarkerIndent), ' ');
	const bool bTask = !TaskBox.empty();
	if (!bBullet)
	{
		Markers.append(Number) += Item.Delimiter;
	}
	Markers.append(!bBullet && bTask ? " " : "").append(bBullet && !bTask ? Bullet : TaskBox).push_back(' ');
	Item.Indent = FMath::Min(Item.Indent + MarkerIndent + GetWidthInBlanks(bBullet, static_cast<int32>(Number.size()), bTask), MaxIndent);
}

void FBlockStack::LeaveItem()
{
	if (!Markers.empty())
	{
		OpenLine(GetTextStyle());
		EndBlock();
	}
	LeaveContainer();
}

void FBlockStack::BeginBlock()
{
	FContainer& Container = Containers.Last();
	if (Container.bHasBlock)
	{
		Gap = FMath::Max(Gap, Container.bTight || Container.bBehindHeading ? EGap::Line : EGap::EmptyLine);
	}
	Container.bHasBlock = true;
	Container.bBehindHeading = false;
}

void FBlockStack::EndHeading()
{
	EndBlock();
	Containers.Last().bBehindHeading = true;
}

void FBlockStack::EndCode()
{
	Gap = EGap::EmptyLine;
}

void FBlockStack::OpenLine(const FMarkupStyle& Style)
{
	if (Gap == EGap::None)
	{
		return;
	}
	CloseGap();
	if (Markers.empty())
	{
		Markers.assign(static_cast<size_t>(Containers.Last().Indent), ' ');
	}
	Writer.Text(Style, Markers);
	Markers.clear();

	// In a tight list the reader does not announce the paragraphs.
	Containers.Last().bHasBlock = true;
}

void FBlockStack::OpenCodeLine()
{
	if (!Markers.empty())
	{
		OpenLine(GetTextStyle());
		EndBlock();
	}
	else if (Gap == EGap::Line)
	{
		Gap = EGap::EmptyLine;
	}
	CloseGap();
}

void FBlockStack::CloseGap()
{
	if (!Writer.IsEmpty())
	{
		for (auto Lines = static_cast<uint8>(Gap); Lines > 0; --Lines)
		{
			Writer.EndLine();
		}
	}
	Gap = EGap::None;
}

FMarkupStyle FBlockStack::GetTextStyle() const
{
	FMarkupStyle Style;
	Style.Block = Containers.Last().TextBlock;
	Style.QuoteDepth = Containers.Last().QuoteDepth;
	return Style;
}
