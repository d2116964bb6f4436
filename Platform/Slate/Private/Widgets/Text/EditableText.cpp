// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "EditableText.h"

#include "Containers/StringView.h"
#include "Framework/Text/TextBoundaries.h"
#include "Input/Events.h"

FEditableText::FEditableText(const TSharedRef<FSlateTextLayout>& InLayout, const TSharedRef<ITextLayoutMarshaller>& InMarshaller)
	: Document(InLayout, InMarshaller)
{
}

void FEditableText::SetText(const FString& Text, bool bKeepSelection)
{
	Composition = FTextSelection();
	History.Clear();
	Document.SetText(Text);
	Caret = {bKeepSelection ? Document.Clamp(Caret.Location) : Document.GetEnd()};
	Anchor = bKeepSelection ? Document.Clamp(Anchor) : Caret.Location;
	Column.Reset();
}

FString FEditableText::GetText() const
{
	if (!IsComposing())
	{
		return Document.GetText();
	}
	return Document.GetText(FTextSelection(FTextLocation(), Composition.GetBeginning())) +
		   Document.GetText(FTextSelection(Composition.GetEnd(), Document.GetEnd()));
}

void FEditableText::PlaceCaret(const FTextCaret& NewCaret, bool bExtendSelection)
{
	CancelComposition();
	History.EndStep();
	Caret = {Document.Clamp(NewCaret.Location), NewCaret.bAtWrapEnd};
	Anchor = bExtendSelection ? Anchor : Caret.Location;
	Column.Reset();
}

void FEditableText::Select(const FTextLocation& From, const FTextLocation& To)
{
	PlaceCaret({From}, false);
	PlaceCaret({To}, true);
}

void FEditableText::Move(ETextMove Direction, bool bExtendSelection, float PageHeight)
{
	const bool bBack = Direction == ETextMove::PreviousCharacter;
	if (!bExtendSelection && HasSelection() && (bBack || Direction == ETextMove::NextCharacter))
	{
		PlaceCaret({bBack ? GetSelection().GetBeginning() : GetSelection().GetEnd()}, false);
		return;
	}
	CancelComposition();
	const FTextCaret Target = FindTarget(Direction, PageHeight);
	const TOptional<float> KeptColumn = Column;
	PlaceCaret(Target, bExtendSelection);
	Column = KeptColumn;
}

FTextCaret FEditableText::FindTarget(ETextMove Direction, float PageHeight)
{
	GetLayout().UpdateIfNeeded();
	if (!IsVerticalMove(Direction))
	{
		Column.Reset();
		return MoveCaret(GetLayout(), Caret, Direction, 0.0f, PageHeight);
	}
	if (!Column.IsSet())
	{
		Column = GetLayout().GetCaretRect(Caret).Left;
	}
	return MoveCaret(GetLayout(), Caret, Direction, Column.GetValue(), PageHeight);
}

FTextRange FEditableText::FindWordAt(const FTextLocation& Location) const
{
	return TextBoundaries::FindWordAt(GetLayout().GetLineText(Location.GetLineIndex()), Location.GetOffset());
}

void FEditableText::Insert(FStringView Text, FTextEdit::EKind Kind)
{
	CancelComposition();
	ReplaceSelection(CleanInputText(Text, bAllowMultiLine), Kind);
}

void FEditableText::Delete(ETextMove Direction)
{
	CancelComposition();
	const bool bHadSelection = HasSelection();
	if (!bHadSelection)
	{
		Anchor = FindTarget(Direction, 0.0f).Location;
	}
	ReplaceSelection(FStringView(), bHadSelection ? FTextEdit::EKind::Other : FTextEdit::EKind::Deleting);
}

void FEditableText::ReplaceSelection(FStringView Text, FTextEdit::EKind Kind)
{
	const FTextSelection Range = GetSelection();
	if (Range.IsEmpty() && Text.IsEmpty())
	{
		return;
	}
	const FTextLocation AnchorBefore = Kind == FTextEdit::EKind::Deleting ? Caret.Location : Anchor;
	History.Add({Kind, Range.GetBeginning(), GetSelectedText(), FString(Text), AnchorBefore, Caret.Location});
	Caret = {Document.Replace(Range, Text)};
	Anchor = Caret.Location;
	Column.Reset();
	++Revision;
}

void FEditableText::Undo()
{
	CancelComposition();
	if (const FTextEdit* Edit = History.Undo())
	{
		Document.Replace(FTextSelection(Edit->Begin, Document.Advance(Edit->Begin, Edit->Inserted.Len())), Edit->Removed);
		Caret = {Edit->CaretBefore};
		Anchor = Edit->AnchorBefore;
		Column.Reset();
		++Revision;
	}
}

void FEditableText::Redo()
{
	CancelComposition();
	if (const FTextEdit* Edit = History.Redo())
	{
		const FTextSelection Range(Edit->Begin, Document.Advance(Edit->Begin, Edit->Removed.Len()));
		Caret = {Document.Replace(Range, Edit->Inserted)};
		Anchor = Caret.Location;
		Column.Reset();
		++Revision;
	}
}

void FEditableText::Compose(const FTextCompositionEvent& Event)
{
	CancelComposition();
	if (Event.ReplaceLength > 0)
	{
		Anchor = Document.Advance(Caret.Location, Event.ReplaceFrom);
		Caret = {Document.Advance(Anchor, Event.ReplaceLength)};
	}
	if (Event.ReplaceLength > 0 || !Event.Commit.IsEmpty() || !Event.Composition.IsEmpty())
	{
		ReplaceSelection(CleanInputText(Event.Commit, bAllowMultiLine), FTextEdit::EKind::Typing);
	}
	if (!Event.Composition.IsEmpty())
	{
		const FTextLocation Begin = Caret.Location;
		const FString Text = CleanInputText(Event.Composition, false);
		Composition = FTextSelection(Begin, Document.Replace(FTextSelection(Begin, Begin), Text));
		Caret = {Document.Advance(Begin, FMath::Clamp(Event.CaretInComposition, 0, Text.Len()))};
		Anchor = Caret.Location;
	}
}

void FEditableText::CancelComposition()
{
	if (IsComposing())
	{
		Caret = {Document.Replace(Composition, FStringView())};
		Anchor = Caret.Location;
		Composition = FTextSelection();
	}
}
