// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextEditHistory.h"

namespace
{
FTextLocation FindInsertedEnd(const FTextEdit& Edit)
{
	int32 LastNewline = INDEX_NONE;
	int32 NumNewlines = 0;
	for (int32 Index = 0; Index < Edit.Inserted.Len(); ++Index)
	{
		if (Edit.Inserted[Index] == TEXT('\n'))
		{
			LastNewline = Index;
			++NumNewlines;
		}
	}
	const int32 FirstColumn = NumNewlines == 0 ? Edit.Begin.GetOffset() : 0;
	return FTextLocation(Edit.Begin.GetLineIndex() + NumNewlines, FirstColumn + Edit.Inserted.Len() - LastNewline - 1);
}

/** A new line or a new word begins a step of its own. */
bool BeginsStep(const FTextEdit& Last, const FTextEdit& Edit)
{
	const TCHAR First = Edit.Inserted.IsEmpty() ? TEXT('\0') : Edit.Inserted[0];
	const TCHAR Before = Last.Inserted.IsEmpty() ? TEXT('\0') : Last.Inserted[Last.Inserted.Len() - 1];
	return First == TEXT('\n') || Before == TEXT('\n') || (Before == TEXT(' ') && First != TEXT(' '));
}
} // namespace

void FTextEditHistory::Add(FTextEdit Edit)
{
	Edits.RemoveAt(NumMade, Edits.Num() - NumMade);
	const bool bMerged = !bStepEnded && !Edits.IsEmpty() && Merge(Edit);
	bStepEnded = Edit.Kind == FTextEdit::EKind::Other;
	if (!bMerged)
	{
		Edits.Add(MoveTemp(Edit));
	}
	if (Edits.Num() > MaxEdits)
	{
		Edits.RemoveAt(0);
	}
	NumMade = Edits.Num();
}

bool FTextEditHistory::Merge(const FTextEdit& Edit)
{
	FTextEdit& Last = Edits.Last();
	if (Last.Kind != Edit.Kind)
	{
		return false;
	}
	if (Edit.Kind == FTextEdit::EKind::Typing && Edit.Removed.IsEmpty() && Edit.Begin == FindInsertedEnd(Last) && !BeginsStep(Last, Edit))
	{
		Last.Inserted += Edit.Inserted;
		return true;
	}
	if (Edit.Kind == FTextEdit::EKind::Deleting && Edit.CaretBefore == Last.Begin)
	{
		// Forwards what is removed was behind the last; backwards before it.
		const bool bForwards = Edit.Begin == Last.Begin;
		Last.Removed = bForwards ? Last.Removed + Edit.Removed : Edit.Removed + Last.Removed;
		Last.Begin = Edit.Begin;
		return true;
	}
	return false;
}

void FTextEditHistory::Clear()
{
	Edits.Empty();
	NumMade = 0;
	bStepEnded = true;
}

const FTextEdit* FTextEditHistory::Undo()
{
	bStepEnded = true;
	return NumMade > 0 ? &Edits[--NumMade] : nullptr;
}

const FTextEdit* FTextEditHistory::Redo()
{
	bStepEnded = true;
	return NumMade < Edits.Num() ? &Edits[NumMade++] : nullptr;
}
