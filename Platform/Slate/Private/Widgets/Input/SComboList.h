// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/Layout/ScrollBar.h"
#include "Widgets/SPanel.h"

class FPrefixSearch;
class SComboBoxBase;
class SComboRow;

/**
 * The options of an open combo box. Only the rows in view exist, so opening it costs the same for ten options and for a hundred thousand.
 * All rows are as high as the highest one so far. The highlight is what Enter chooses; keys and the mouse move it, and it may be on none.
 */
class SComboList final : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SComboList) { _Clipping = EWidgetClipping::ClipToBounds; }
	SLATE_ARGUMENT(TWeakPtr<SComboBoxBase>, Owner)
	SLATE_ARGUMENT(FMargin, RowPadding)
	/** In units. */
	SLATE_ARGUMENT(float, MaxHeight)
	SLATE_END_ARGS()

	SComboList();
	virtual ~SComboList() override;
	void Construct(const FArguments& InArgs);

	/** Makes all rows anew, from the options and the selection as they are now. */
	void Refresh();

	virtual FChildren* GetChildren() override { return &Rows; }
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual void OnFocusChanging(const TSharedRef<SWidget>& NewFocused, const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost() override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArranged(const FGeometry& AllottedGeometry) override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	double GetRowHeight() const;

	/** Notes what a row wishes for. The row at the top stays there. */
	void Measure(const SWidget& Row);

	/** Makes the rows that are in view, and drops the others. */
	void MakeRowsInView();
	TSharedRef<SComboRow> MakeRow(int32 Index);
	void DropRow(int32 Slot);
	SComboRow& GetRow(int32 Slot) const;
	void ShowHighlight();
	/** The highlight stays on its option, and where that is gone, on its place. Returns by how many rows it moved with its option. */
	int32 KeepHighlight();

	void ScrollTo(double Offset);
	void ScrollIntoView(int32 Index);
	/** INDEX_NONE highlights none. */
	void Highlight(int32 Index);
	void HighlightByKey(int32 Index);
	void HighlightUnderMouse(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	void Choose(int32 Index, ESelectInfo::Type SelectInfo);

	/** The options may have changed without a word. */
	void RefreshIfStale();

	/** What Tab goes to in the highlighted row; null where there is nothing. */
	TSharedPtr<SWidget> FindStopInHighlight();

	/** INDEX_NONE where there is no row. */
	int32 FindRowAt(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const;
	TOptional<int32> FindKeyTarget(const FKey& Key) const;

	/** What the row of an option says first, whether or not it exists. */
	FString ReadOption(int32 Index) const;

	TWeakPtr<SComboBoxBase> Owner;
	FMargin RowPadding;
	double MaxHeight = 0.0;

	int32 NumOptions = 0;
	int32 Selected = INDEX_NONE;
	int32 Highlighted = INDEX_NONE;
	/** Where the left mouse button went down. */
	int32 Pressed = INDEX_NONE;

	/** The rows that exist, in order; the first shows option FirstRow. */
	TPanelChildren<FBasicLayoutSlot> Rows;
	int32 FirstRow = 0;

	/** The largest wish of a row so far, so that scrolling does not make the list breathe. */
	FVector2D RowSize = FVector2D(0.0, 0.0);
	FScrollBar Bar;
	TSharedPtr<FPrefixSearch> Search;
};
