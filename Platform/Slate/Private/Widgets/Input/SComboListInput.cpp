// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Input/PrefixSearch.h"
#include "Widgets/Input/SComboList.h"
#include "Widgets/Input/SComboRow.h"

namespace
{
bool HasCommandModifier(const FInputEvent& Event)
{
	return Event.IsControlDown() || Event.IsAltDown() || Event.IsCommandDown();
}

/** AltGr, which types characters, comes as Control and Alt. */
bool IsTyped(const FCharacterEvent& Event)
{
	return Event.IsControlDown() == Event.IsAltDown() && !Event.IsCommandDown();
}

TSharedPtr<SWidget> FindStop(SWidget& Widget)
{
	if (!Widget.GetVisibility().IsVisible() || !Widget.IsEnabled())
	{
		return nullptr;
	}
	TSharedPtr<SWidget> Stop;
	if (Widget.SupportsKeyboardFocus())
	{
		Stop = Widget.AsShared();
	}
	FChildren& Children = *Widget.GetChildren();
	for (int32 Index = 0; !Stop.IsValid() && Index < Children.Num(); ++Index)
	{
		Stop = FindStop(*Children.GetChildAt(Index));
	}
	return Stop;
}
} // namespace

FReply SComboList::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (HasCommandModifier(InKeyEvent))
	{
		return SPanel::OnKeyDown(MyGeometry, InKeyEvent);
	}
	RefreshIfStale();
	if (InKeyEvent.GetKey() == EKeys::Enter)
	{
		Choose(Highlighted, ESelectInfo::OnKeyPress);
		return FReply::Handled();
	}
	const bool bEntersRow = InKeyEvent.GetKey() == EKeys::Tab && !InKeyEvent.IsShiftDown() && HasKeyboardFocus();
	if (const TSharedPtr<SWidget> Stop = bEntersRow ? FindStopInHighlight() : nullptr)
	{
		return FReply::Handled().SetUserFocus(Stop.ToSharedRef(), EFocusCause::Navigation);
	}
	const TOptional<int32> Target = FindKeyTarget(InKeyEvent.GetKey());
	if (!Target.IsSet())
	{
		return SPanel::OnKeyDown(MyGeometry, InKeyEvent);
	}
	Search->Stop();
	HighlightByKey(*Target);
	// It may have been on a button in a row, which Enter would press.
	return FReply::Handled().SetUserFocus(AsShared());
}

TSharedPtr<SWidget> SComboList::FindStopInHighlight()
{
	if (Highlighted == INDEX_NONE)
	{
		return nullptr;
	}
	ScrollIntoView(Highlighted);
	const int32 Slot = Highlighted - FirstRow;
	return Slot >= 0 && Slot < Rows.Num() ? FindStop(GetRow(Slot)) : nullptr;
}

void SComboList::OnFocusChanging(const TSharedRef<SWidget>&, const FFocusEvent& InFocusEvent)
{
	for (int32 Slot = 0; Slot < Rows.Num(); ++Slot)
	{
		if (GetRow(Slot).HasAnyUserFocusOrFocusedDescendants())
		{
			// Under the mouse nothing may move, or the click would miss.
			const bool bByKeys = InFocusEvent.GetCause() == EFocusCause::Navigation;
			bByKeys ? HighlightByKey(FirstRow + Slot) : Highlight(FirstRow + Slot);
			return;
		}
	}
}

TOptional<int32> SComboList::FindKeyTarget(const FKey& Key) const
{
	const int32 Last = NumOptions - 1;
	const int32 Page = FMath::Max(1, FMath::FloorToInt(Bar.GetViewLength() / GetRowHeight()) - 1);
	const int32 From = FMath::Max(Highlighted, 0);
	const TPair<FKey, int32> Targets[] = {{EKeys::Up, Highlighted == INDEX_NONE ? Last : From - 1}, {EKeys::Down, Highlighted + 1},
		{EKeys::PageUp, From - Page}, {EKeys::PageDown, From + Page}, {EKeys::Home, 0}, {EKeys::End, Last}};
	for (const TPair<FKey, int32>& Each : Targets)
	{
		if (Each.Key == Key && NumOptions > 0)
		{
			return FMath::Clamp(Each.Value, 0, Last);
		}
	}
	return NullOpt;
}

FReply SComboList::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Character = InCharacterEvent.GetCharacter();
	const bool bPrints = Character > u' ' || (Character == u' ' && Search->IsTyping());
	if (!IsTyped(InCharacterEvent) || !bPrints)
	{
		return SPanel::OnKeyChar(MyGeometry, InCharacterEvent);
	}
	RefreshIfStale();
	Search->Type(Character, Highlighted, NumOptions);
	return FReply::Handled();
}

int32 SComboList::FindRowAt(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const
{
	const FVector2D Place = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	const FVector2D Size = MyGeometry.GetLocalSize();
	const bool bInRows = Place.X >= 0.0 && Place.X < Size.X - Bar.GetThickness() && Place.Y >= 0.0 && Place.Y < Size.Y;
	const int32 Index = FMath::FloorToInt((Place.Y + Bar.GetOffset()) / GetRowHeight());
	return bInRows && Index < NumOptions ? Index : INDEX_NONE;
}

FReply SComboList::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (Bar.OnMouseButtonDown(MyGeometry, MouseEvent))
	{
		MakeRowsInView();
		return FReply::Handled().CaptureMouse(AsShared());
	}
	RefreshIfStale();
	Pressed = MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton ? FindRowAt(MyGeometry, MouseEvent) : INDEX_NONE;
	return FReply::Handled();
}

FReply SComboList::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (Bar.OnMouseButtonUp(MouseEvent))
	{
		return FReply::Handled().ReleaseMouseCapture();
	}
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Handled();
	}
	RefreshIfStale();
	if (Pressed != INDEX_NONE && Pressed == FindRowAt(MyGeometry, MouseEvent))
	{
		Choose(Pressed, ESelectInfo::OnMouseClick);
	}
	Pressed = INDEX_NONE;
	return FReply::Handled();
}

FReply SComboList::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (Bar.OnMouseMove(MyGeometry, MouseEvent))
	{
		MakeRowsInView();
	}
	else
	{
		HighlightUnderMouse(MyGeometry, MouseEvent);
	}
	return FReply::Handled();
}

void SComboList::HighlightUnderMouse(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (const int32 Row = FindRowAt(MyGeometry, MouseEvent); Row != INDEX_NONE)
	{
		Highlight(Row);
	}
}

FReply SComboList::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	ScrollTo(Bar.GetOffset() - MouseEvent.GetWheelDelta() * FScrollBar::WheelNotchLength);
	HighlightUnderMouse(MyGeometry, MouseEvent);
	return FReply::Handled();
}

void SComboList::OnMouseLeave(const FPointerEvent&)
{
	Bar.OnMouseLeave();
}

void SComboList::OnMouseCaptureLost()
{
	Bar.OnMouseCaptureLost();
}
