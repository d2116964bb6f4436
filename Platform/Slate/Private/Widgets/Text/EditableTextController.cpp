// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "EditableTextController.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/SWidget.h"

FEditableTextController::FEditableTextController(SWidget& InOwner, const TSharedRef<FSlateTextLayout>& InLayout,
	const TSharedRef<ITextLayoutMarshaller>& InMarshaller, FEditableTextOptions InOptions)
	: Owner(InOwner)
	, Options(MoveTemp(InOptions))
	, Text(InLayout, InMarshaller)
{
	Text.SetAllowMultiLine(Options.bAllowMultiLine);
}

void FEditableTextController::SetText(const FString& NewText)
{
	Text.SetText(NewText, IsReadOnly());
	bBringCaretIntoView = !IsReadOnly() && Owner.HasKeyboardFocus();
}

bool FEditableTextController::Copy()
{
	if (Text.HasSelection())
	{
		FSlateApplication::Get().GetDesktop().SetClipboardText(Text.GetSelectedText());
	}
	return true;
}

bool FEditableTextController::Cut()
{
	return Edit(
		[this]
		{
			if (Text.HasSelection())
			{
				Copy();
				Text.Insert(FStringView(), FTextEdit::EKind::Other);
			}
		});
}

bool FEditableTextController::Paste()
{
	return Edit([this] { Text.Insert(FSlateApplication::Get().GetDesktop().GetClipboardText(), FTextEdit::EKind::Other); });
}

FReply FEditableTextController::OnTextComposition(const FTextCompositionEvent& Event)
{
	return Edit([&] { Text.Compose(Event); }) ? FReply::Handled() : FReply::Unhandled();
}

bool FEditableTextController::Edit(const TFunction<void()>& Change)
{
	if (IsReadOnly())
	{
		return false;
	}
	const uint32 Revision = Text.GetRevision();
	Change();
	bBringCaretIntoView = true;
	Owner.Invalidate(EInvalidateWidgetReason::Layout);
	OnCaretMoved();
	if (Text.GetRevision() != Revision)
	{
		Options.OnTextChanged.ExecuteIfBound(FText::FromString(Text.GetText()));
	}
	return true;
}

void FEditableTextController::Commit(ETextCommit::Type Type)
{
	if (!IsReadOnly())
	{
		Options.OnTextCommitted.ExecuteIfBound(FText::FromString(Text.GetText()), Type);
	}
}

void FEditableTextController::OnFocusReceived()
{
	if (!IsReadOnly())
	{
		OnCaretMoved();
	}
}

void FEditableTextController::OnFocusLost()
{
	Blinker.Stop();
	PendingSurrogate = 0;
	CancelComposition();
	if (Options.bClearSelectionOnFocusLoss)
	{
		Text.ClearSelection();
	}
	Owner.Invalidate(EInvalidateWidgetReason::Paint);
	Commit(ETextCommit::OnUserMovedFocus);
}

FTextCaret FEditableTextController::GetCaretAt(const FVector2D& Position) const
{
	Text.GetLayout().UpdateIfNeeded();
	return Text.GetLayout().GetCaretAt(Position + Scroller.GetOffset());
}

FTextLocation FEditableTextController::GetCharacterAt(const FVector2D& Position) const
{
	Text.GetLayout().UpdateIfNeeded();
	return Text.GetLayout().GetCharacterAt(Position + Scroller.GetOffset());
}

void FEditableTextController::PlaceCaret(const FTextCaret& Caret, bool bExtendSelection)
{
	CancelComposition();
	Text.PlaceCaret(Caret, bExtendSelection);
	OnCaretMoved();
}

void FEditableTextController::Select(const FTextLocation& From, const FTextLocation& To)
{
	CancelComposition();
	Text.Select(From, To);
	OnCaretMoved();
}

void FEditableTextController::CancelComposition()
{
	if (Text.IsComposing())
	{
		Text.CancelComposition();
		Owner.Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void FEditableTextController::SetSizes(const FVector2D& View, const FVector2D& Content)
{
	Scroller.SetSizes(View, Content);
	if (bBringCaretIntoView)
	{
		bBringCaretIntoView = false;
		Scroller.BringIntoView(GetCaretArea());
	}
}

bool FEditableTextController::ScrollBy(const FVector2D& Delta)
{
	const bool bScrolled = Scroller.ScrollBy(Delta);
	if (bScrolled)
	{
		OnScrolled();
	}
	return bScrolled;
}

void FEditableTextController::OnCaretMoved()
{
	if (IsReadOnly())
	{
		Owner.Invalidate(EInvalidateWidgetReason::Paint);
	}
	else if (Owner.HasKeyboardFocus())
	{
		Blinker.Restart(Owner.AsShared());
	}
	if (Scroller.BringIntoView(GetCaretArea()))
	{
		OnScrolled();
	}
}

FSlateRect FEditableTextController::GetCaretArea() const
{
	Text.GetLayout().UpdateIfNeeded();
	FSlateRect Area = Text.GetLayout().GetCaretRect(Text.GetCaret());
	const float Scale = Owner.GetCachedGeometry().GetScale();
	Area.Left = FMath::RoundToFloat(Area.Left);
	Area.Right = Area.Left + FMath::Max(1.0f, FMath::RoundToFloat(CaretWidth * Scale));
	return Area;
}

void FEditableTextController::OnScrolled()
{
	// Widgets among the text are placed anew.
	Owner.Invalidate(Owner.GetChildren()->Num() > 0 ? EInvalidateWidgetReason::Layout : EInvalidateWidgetReason::Paint);
}
