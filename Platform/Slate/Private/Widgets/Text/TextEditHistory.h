// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextLayout.h"

/** One change: at `Begin`, `Removed` gave way to `Inserted`. */
struct FTextEdit
{
	enum class EKind : uint8
	{
		/** Edits of these two kinds that follow each other are undone together. */
		Typing,
		Deleting,
		Other
	};

	EKind Kind = EKind::Other;
	FTextLocation Begin;
	FString Removed;
	FString Inserted;
	/** What was selected, from the anchor to the caret, before the change. */
	FTextLocation AnchorBefore;
	FTextLocation CaretBefore;
};

/** What can be undone and redone. Bounded: the oldest edits are forgotten. */
class FTextEditHistory
{
public:
	static constexpr int32 MaxEdits = 1000;

	void Add(FTextEdit Edit);
	/** The next edit starts a step of its own. */
	void EndStep() { bStepEnded = true; }
	void Clear();

	/** The edit to take back, or to make again; null if there is none. */
	const FTextEdit* Undo();
	const FTextEdit* Redo();

private:
	bool Merge(const FTextEdit& Edit);

	TArray<FTextEdit> Edits;
	/** How many of them are made; the others have been undone. */
	int32 NumMade = 0;
	bool bStepEnded = true;
};
