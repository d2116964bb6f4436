// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "EditableTextController.h"
#include "Input/Events.h"
#include "Widgets/SWidget.h"

namespace
{
bool IsHighSurrogate(TCHAR Character)
{
	return Character >= 0xD800 && Character < 0xDC00;
}

bool IsLowSurrogate(TCHAR Character)
{
	return Character >= 0xDC00 && Character < 0xE000;
}

/** A control character is what a command key yields. With Alt too the keyboard makes a letter of it. */
bool IsText(const FCharacterEvent& Event)
{
	const bool bIsCommand = (Event.IsControlDown() && !Event.IsAltDown()) || Event.IsCommandDown();
	const TCHAR Character = Event.GetCharacter();
	return !bIsCommand && Character >= 0x20 && Character != 0x7F;
}

uint8 GetModifiers(const FKeyEvent& Event)
{
	uint8 Modifiers = EModifierKey::None;
	Modifiers |= Event.IsControlDown() ? EModifierKey::Control : EModifierKey::None;
	Modifiers |= Event.IsAltDown() ? EModifierKey::Alt : EModifierKey::None;
	Modifiers |= Event.IsShiftDown() ? EModifierKey::Shift : EModifierKey::None;
	Modifiers |= Event.IsCommandDown() ? EModifierKey::Command : EModifierKey::None;
	return Modifiers;
}

struct FMoveKey
{
	const FKey& Key;
	ETextMove Plain;
	ETextMove WithControl;
};

/** The arrows to the sides are those of a line that runs from left to right. */
const FMoveKey* FindMoveKey(const FKey& Key)
{
	static const FMoveKey Keys[] = {
		{EKeys::Left, ETextMove::PreviousCharacter, ETextMove::PreviousWord},
		{EKeys::Right, ETextMove::NextCharacter, ETextMove::NextWord},
		{EKeys::Up, ETextMove::LineUp, ETextMove::LineUp},
		{EKeys::Down, ETextMove::LineDown, ETextMove::LineDown},
		{EKeys::Home, ETextMove::LineBegin, ETextMove::TextBegin},
		{EKeys::End, ETextMove::LineEnd, ETextMove::TextEnd},
		{EKeys::PageUp, ETextMove::PageUp, ETextMove::PageUp},
		{EKeys::PageDown, ETextMove::PageDown, ETextMove::PageDown},
	};
	for (const FMoveKey& Candidate : Keys)
	{
		if (Candidate.Key == Key)
		{
			return &Candidate;
		}
	}
	return nullptr;
}

FKey FindKeyInLine(const FKey& Key, bool bRightToLeft)
{
	if (bRightToLeft && Key == EKeys::Left)
	{
		return EKeys::Right;
	}
	return bRightToLeft && Key == EKeys::Right ? EKeys::Left : Key;
}
} // namespace

FReply FEditableTextController::OnKeyDown(const FKeyEvent& Event)
{
	const bool bHandled = HandleMoveKey(Event) || HandleCommandKey(Event) || HandleEditKey(Event);
	return bHandled ? FReply::Handled() : FReply::Unhandled();
}

FReply FEditableTextController::OnKeyChar(const FCharacterEvent& Event)
{
	if (IsReadOnly() || !IsText(Event))
	{
		return FReply::Unhandled();
	}
	const TCHAR Character = Event.GetCharacter();
	if (IsHighSurrogate(Character))
	{
		PendingSurrogate = Character;
		return FReply::Handled();
	}
	FString Typed;
	if (IsLowSurrogate(Character) && PendingSurrogate != 0)
	{
		Typed.AppendChar(PendingSurrogate);
	}
	PendingSurrogate = 0;
	Typed.AppendChar(Character);
	Edit([&] { Text.Insert(Typed, FTextEdit::EKind::Typing); });
	return FReply::Handled();
}

bool FEditableTextController::HandleMoveKey(const FKeyEvent& Event)
{
	Text.GetLayout().UpdateIfNeeded();
	const bool bRightToLeft = Text.GetLayout().IsRightToLeft(Text.GetCaret().Location.GetLineIndex());
	const FMoveKey* Key = FindMoveKey(FindKeyInLine(Event.GetKey(), bRightToLeft));
	// Without a caret only a selection can be extended; the keys are left to what scrolls around the text.
	if (!Key || Event.IsAltDown() || (IsReadOnly() && !Event.IsShiftDown()))
	{
		return false;
	}
	CancelComposition();
	const float PageHeight = static_cast<float>(Scroller.GetView().Y);
	Text.Move(Event.IsControlDown() ? Key->WithControl : Key->Plain, Event.IsShiftDown(), PageHeight);
	OnCaretMoved();
	return true;
}

bool FEditableTextController::HandleCommandKey(const FKeyEvent& Event)
{
	const FKey& Key = Event.GetKey();
	const bool bControl = Event.IsControlDown() && !Event.IsAltDown();
	if (Key == EKeys::Insert && (bControl || Event.IsShiftDown()))
	{
		return bControl ? Copy() : Paste();
	}
	if (!bControl)
	{
		return Key == EKeys::Delete && Event.IsShiftDown() && Cut();
	}
	if (Key == EKeys::A)
	{
		CancelComposition();
		Text.SelectAll();
		Owner.Invalidate(EInvalidateWidgetReason::Paint);
		return true;
	}
	if (Key == EKeys::C)
	{
		return Copy();
	}
	if (Key == EKeys::X)
	{
		return Cut();
	}
	if (Key == EKeys::V)
	{
		return Paste();
	}
	if (Key == EKeys::Y || (Key == EKeys::Z && Event.IsShiftDown()))
	{
		return Edit([this] { Text.Redo(); });
	}
	return Key == EKeys::Z && Edit([this] { Text.Undo(); });
}

bool FEditableTextController::HandleEditKey(const FKeyEvent& Event)
{
	const FKey& Key = Event.GetKey();
	if (Key == EKeys::Enter)
	{
		return HandleEnter(Event);
	}
	if (Key == EKeys::Escape)
	{
		return HandleEscape();
	}
	if (Key == EKeys::BackSpace)
	{
		return Edit([&] { Text.Delete(Event.IsControlDown() ? ETextMove::PreviousWord : ETextMove::PreviousCharacter); });
	}
	return Key == EKeys::Delete && Edit([&] { Text.Delete(Event.IsControlDown() ? ETextMove::NextWord : ETextMove::NextCharacter); });
}

bool FEditableTextController::HandleEnter(const FKeyEvent& Event)
{
	if (IsReadOnly())
	{
		return false;
	}
	if (Text.IsComposing())
	{
		// It picks what the input method offers.
		return true;
	}
	const EModifierKey::Type Wanted = Options.ModifierForNewLine;
	if (Options.bAllowMultiLine && (Wanted == EModifierKey::None || GetModifiers(Event) == Wanted))
	{
		return Edit([this] { Text.Insert(TEXTVIEW("\n"), FTextEdit::EKind::Typing); });
	}
	Commit(ETextCommit::OnEnter);
	return true;
}

bool FEditableTextController::HandleEscape()
{
	if (Text.IsComposing())
	{
		return Edit([this] { Text.CancelComposition(); });
	}
	if (!Text.HasSelection())
	{
		return false;
	}
	Text.ClearSelection();
	Owner.Invalidate(EInvalidateWidgetReason::Paint);
	return true;
}
