// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"

/** Pressed and let go over it, or Enter or Space while it has the focus, is a click. Letting go elsewhere is none. */
class SButton : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SButton) {}
	SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ARGUMENT_DEFAULT(EHorizontalAlignment, HAlign) = HAlign_Fill;
	SLATE_ARGUMENT_DEFAULT(EVerticalAlignment, VAlign) = VAlign_Fill;
	SLATE_ARGUMENT_DEFAULT(FMargin, ContentPadding) = FMargin(4.0f, 2.0f);
	/** Shown where there is no content. */
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_EVENT(FOnClicked, OnClicked)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetOnClicked(const FOnClicked& InOnClicked) { OnClicked = InOnClicked; }
	bool IsPressed() const { return bIsPressed; }

	virtual FSlateColor GetForegroundColor() const override;
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost() override;

protected:
	/** Where it holds nothing but an image: the last part of the name under which the image's brush stands in its style. */
	virtual FText ComputeAccessibleText() const override;
	virtual const FSlateBrush* GetBackground(bool bEnabled) const override;

private:
	void SetPressed(bool bInPressed);
	bool LooksHovered() const { return IsHovered() || bHasFocusByKeys; }

	const FButtonStyle* Style = nullptr;
	FMargin ContentPadding;
	FOnClicked OnClicked;
	bool bIsPressed = false;
	/** Whoever came by the keyboard must see where it is. */
	bool bHasFocusByKeys = false;
};
