// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "MarkupWriter.h"
#include "Math/UnrealMathUtility.h"
#include <string>
#include <string_view>

// Quotes, lists and items around the text, and what they put between and before its lines: blocks stand apart by an empty line, but by a
// mere new line in a tight list and behind a heading, where no code follows; the first line of an item begins with its markers, every other
// one with blanks.
class FBlockStack
{
public:
	explicit FBlockStack(FMarkupWriter& InWriter)
		: Writer(InWriter)
	{
		Containers.Add({});
	}

	void EnterQuote();
	void EnterBulletList(bool bTight);
	void EnterNumberedList(bool bTight, uint32 FirstNumber, char Delimiter);
	// The box of a task, which takes the place of a bullet; empty for other items.
	void EnterItem(std::string_view TaskBox);
	void LeaveContainer() { Containers.Pop(); }
	void LeaveItem();

	// Announces a block inside the innermost container.
	void BeginBlock();

	// What follows stands on a new line.
	void EndBlock() { Gap = FMath::Max(Gap, EGap::Line); }

	// The same inside of a block that shows its empty lines, of which several become one.
	void EndLine() { Gap = Gap == EGap::None ? EGap::Line : EGap::EmptyLine; }
	void EndHeading();

	// The box has no margin of its own, and would touch what stands above and below it.
	void EndCode();

	// Goes to the line that the next text belongs to, if it is not there already.
	void OpenLine(const FMarkupStyle& Style);

	// The same for a code run, which takes a line of its own without indentation: its box is as wide as a message can be.
	void OpenCodeLine();

	// Of plain text in the innermost container.
	FMarkupStyle GetTextStyle() const;

private:
	enum class EGap : uint8
	{
		None,
		Line,
		EmptyLine
	};

	struct FContainer
	{
		EMarkupBlock TextBlock = EMarkupBlock::Paragraph;
		uint8 QuoteDepth = 0;
		bool bTight = false;
		bool bHasBlock = false;
		bool bBehindHeading = false;
		// 0 in a bullet list.
		char Delimiter = 0;
		uint64 NextNumber = 0;
		// In blanks.
		int32 Indent = 0;
	};

	FContainer& Push();
	FContainer& PushList(EMarkupBlock TextBlock, bool bTight);
	void CloseGap();

	FMarkupWriter& Writer;
	TArray<FContainer> Containers;

	// What separates the next text from the one before it.
	EGap Gap = EGap::Line;

	// The markers of items that have no text yet. Wherever there are some, all inner items wait too.
	std::string Markers;
};
