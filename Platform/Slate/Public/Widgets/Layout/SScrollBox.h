// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SPanel.h"

class FScrollBar;

enum class EAllowOverscroll : uint8
{
	Yes,
	No
};

/**
 * A column that may be longer than its room and is scrolled by wheel, keys (Page Up, Page Down, Home, End) and its own scroll bar, which
 * takes room only while there is something to scroll. Offsets are in units from the top of the content.
 */
class SScrollBox : public SPanel
{
public:
	class FSlot final : public FBasicLayoutSlot
	{
	public:
		class FSlotArguments : public TBasicLayoutSlotArguments<FSlot, FSlotArguments>
		{
		public:
			using TBasicLayoutSlotArguments::TBasicLayoutSlotArguments;
		};
	};

	SLATE_BEGIN_ARGS(SScrollBox) { _Clipping = EWidgetClipping::ClipToBounds; }
	SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_STYLE_ARGUMENT(FScrollBarStyle, ScrollBarStyle)
	/** This box never goes beyond its ends, whatever it is told. */
	SLATE_ARGUMENT_DEFAULT(EAllowOverscroll, AllowOverscroll) = EAllowOverscroll::No;
	SLATE_END_ARGS()

	SScrollBox();
	virtual ~SScrollBox() override;
	void Construct(const FArguments& InArgs);

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(MakeUnique<FSlot>()); }

	/** Takes effect in the next layout, with the length the content has then. */
	void ScrollToEnd();

	/** Beyond the end counts as the end. */
	void SetScrollOffset(float NewOffset);
	float GetScrollOffset() const;
	float GetScrollOffsetOfEnd() const;

	/** Scrolls no further than needed to see it; of what is longer than the view, the beginning. */
	void ScrollDescendantIntoView(const TSharedRef<SWidget>& Widget);

	virtual FChildren* GetChildren() override { return &Children; }
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual void OnFocusChanging(const TSharedRef<SWidget>& NewFocused, const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost() override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArranged(const FGeometry& AllottedGeometry) override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	FReply ScrollByUser(double NewOffset);

	TPanelChildren<FSlot> Children;
	TUniquePtr<FScrollBar> Bar;

	/** ScrollToEnd was asked for; it holds for all layout passes of the frame in which it is first seen. */
	bool bScrollToEnd = false;
	uint64 ScrollToEndFrame = 0;
};
