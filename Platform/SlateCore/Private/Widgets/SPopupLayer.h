// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/SCompoundWidget.h"

/** Covers a window and holds its popup, so that nothing below gets the mouse while it is open. */
class SPopupLayer final : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SPopupLayer) {}
	/** In the content of the same window. */
	SLATE_ARGUMENT(TWeakPtr<SWidget>, Anchor)
	/** The user wants it closed. */
	SLATE_EVENT(FSimpleDelegate, OnDismissed)
	SLATE_EVENT(FSimpleDelegate, OnClosed)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const TSharedRef<SWidget>& GetContent() const { return ChildSlot.GetWidget(); }

	/** False once the anchor has gone, or can't be seen or used. */
	bool IsAnchored() const;

	/** Asks for another layout if the anchor stands elsewhere now. */
	void FollowAnchor();

	void NotifyClosed() { OnClosed.ExecuteIfBound(); }

	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

protected:
	virtual void OnArranged(const FGeometry& AllottedGeometry) override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	/** The anchor's room in units of this. */
	FSlateRect FindAnchorRect(const FGeometry& AllottedGeometry) const;

	TWeakPtr<SWidget> Anchor;
	FSimpleDelegate OnDismissed;
	FSimpleDelegate OnClosed;

	/** Where the anchor stood in the last layout, in units of this. */
	FSlateRect AnchorRect;
};
