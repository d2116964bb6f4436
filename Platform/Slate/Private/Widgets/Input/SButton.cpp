// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Input/SButton.h"

#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
bool IsAcceptKey(const FKeyEvent& Event)
{
	const bool bPlain = !Event.IsControlDown() && !Event.IsAltDown() && !Event.IsCommandDown();
	return bPlain && (Event.GetKey() == EKeys::Enter || Event.GetKey() == EKeys::SpaceBar);
}

/** The one widget at the end of a chain of single children. */
TSharedRef<SWidget> FindInnermost(TSharedRef<SWidget> Widget)
{
	while (Widget->GetChildren()->Num() == 1)
	{
		Widget = Widget->GetChildren()->GetChildAt(0);
	}
	return Widget;
}
} // namespace

void SButton::Construct(const FArguments& InArgs)
{
	Style = InArgs._ButtonStyle != nullptr ? InArgs._ButtonStyle : &FCoreStyle::Get().GetWidgetStyle<FButtonStyle>(TEXT("Button"));
	ContentPadding = InArgs._ContentPadding;
	OnClicked = InArgs._OnClicked;
	TSharedRef<SWidget> Content = InArgs._Content.Widget;
	if (Content == SNullWidget::NullWidget && InArgs._Text.IsSet())
	{
		Content = SNew(STextBlock).Text(InArgs._Text).TextStyle(InArgs._TextStyle);
	}
	ChildSlot.Padding(Style->NormalPadding + ContentPadding).HAlign(InArgs._HAlign).VAlign(InArgs._VAlign)[Content];
}

void SButton::SetPressed(bool bInPressed)
{
	if (bIsPressed != bInPressed)
	{
		bIsPressed = bInPressed;
		ChildSlot.Padding((bIsPressed ? Style->PressedPadding : Style->NormalPadding) + ContentPadding);
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

const FSlateBrush* SButton::GetBackground(bool bEnabled) const
{
	if (!bEnabled)
	{
		return &Style->Disabled;
	}
	if (bIsPressed)
	{
		return &Style->Pressed;
	}
	return LooksHovered() ? &Style->Hovered : &Style->Normal;
}

FSlateColor SButton::GetForegroundColor() const
{
	if (!IsEnabled())
	{
		return Style->DisabledForeground;
	}
	if (bIsPressed)
	{
		return Style->PressedForeground;
	}
	return LooksHovered() ? Style->HoveredForeground : Style->NormalForeground;
}

FText SButton::ComputeAccessibleText() const
{
	const TSharedRef<SWidget> Innermost = FindInnermost(ChildSlot.GetWidget());
	const SImage* Image = dynamic_cast<const SImage*>(&*Innermost);
	if (Image == nullptr || Image->GetImage() == nullptr)
	{
		return FText::GetEmpty();
	}
	const FName StyleName = FSlateStyleRegistry::FindBrushName(Image->GetImage());
	if (StyleName == NAME_None)
	{
		return FText::GetEmpty();
	}
	const FString Name = StyleName.ToString();
	int32 LastDot = INDEX_NONE;
	Name.FindLastChar(u'.', LastDot);
	return FText::FromString(Name.RightChop(LastDot + 1));
}

FReply SButton::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent))
	{
		return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
	}
	// A key that was held since before presses nothing.
	SetPressed(bIsPressed || !InKeyEvent.IsRepeat());
	return FReply::Handled();
}

FReply SButton::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent) || !bIsPressed)
	{
		return SBorder::OnKeyUp(MyGeometry, InKeyEvent);
	}
	SetPressed(false);
	return OnClicked.IsBound() ? OnClicked.Execute() : FReply::Handled();
}

FReply SButton::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	bHasFocusByKeys = InFocusEvent.GetCause() == EFocusCause::Navigation;
	Invalidate(EInvalidateWidgetReason::Paint);
	return SBorder::OnFocusReceived(MyGeometry, InFocusEvent);
}

void SButton::OnFocusLost(const FFocusEvent&)
{
	bHasFocusByKeys = false;
	Invalidate(EInvalidateWidgetReason::Paint);
	if (!HasMouseCapture())
	{
		SetPressed(false);
	}
}

FReply SButton::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return SBorder::OnMouseButtonDown(MyGeometry, MouseEvent);
	}
	SetPressed(true);
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SButton::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !HasMouseCapture())
	{
		return SBorder::OnMouseButtonUp(MyGeometry, MouseEvent);
	}
	const bool bClicked = bIsPressed && MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition());
	SetPressed(false);
	FReply Reply = bClicked && OnClicked.IsBound() ? OnClicked.Execute() : FReply::Handled();
	return Reply.ReleaseMouseCapture();
}

void SButton::OnMouseEnter(const FGeometry&, const FPointerEvent&)
{
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SButton::OnMouseLeave(const FPointerEvent&)
{
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SButton::OnMouseCaptureLost()
{
	SetPressed(false);
}
