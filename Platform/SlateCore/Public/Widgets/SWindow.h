// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SPanel.h"

class SPopupLayer;

/**
 * The root of a widget tree. The desktop gives it a size and a scale, paints what GetDisplayList holds, and repaints what TakeDamage names.
 * Absolute space begins in its top left corner.
 */
class SWindow : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SWindow) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	SWindow();
	virtual ~SWindow() override;
	void Construct(const FArguments& InArgs);

	void SetContent(const TSharedRef<SWidget>& InContent);
	const TSharedRef<SWidget>& GetContent() const { return Layers[0].GetWidget(); }

	/**
	 * Shows a popup over the content, at its anchor: below it where there is room, else above, and never beyond the window. Until it is
	 * closed nothing below it gets the mouse. One is open at a time; opening another closes it. It also closes by a press beside it, which
	 * does nothing else, by Escape, when the focus goes elsewhere, and when the anchor disappears or is disabled. If it has the focus then,
	 * the focus returns to where it was. OnClosed comes in all cases, after it has gone.
	 */
	void OpenPopup(const TSharedRef<SWidget>& Anchor, const TSharedRef<SWidget>& Popup, const FSimpleDelegate& OnClosed);
	void ClosePopup();

	/** Null while none is open. */
	TSharedPtr<SWidget> GetPopup() const;

	/** The size in device pixels, and device pixels per unit. */
	void SetClientArea(const FVector2D& SizeInPixels, float InScale);
	const FVector2D& GetClientSizeInPixels() const { return ClientSize; }
	float GetDPIScaleFactor() const { return Scale; }

	FGeometry GetWindowGeometryInWindow() const;

	/** What was painted last; null before the first frame. */
	const TSharedPtr<const FSlateDrawChunk>& GetDisplayList() const { return DisplayList; }

	/** The parts that were painted anew since the last call, in device pixels. */
	TArray<FSlateRect> TakeDamage();

	virtual FChildren* GetChildren() override { return &Layers; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual void OnTreeInvalidated() override;

private:
	friend class FSlateFocus;
	friend class FSlateFrame;

	/** Replaces the display list and notes what changed. */
	void SetDisplayList(const TSharedRef<const FSlateDrawChunk>& NewList);

	/** Closes the popup if its anchor has gone, and moves it if the anchor moved. */
	void UpdatePopup();

	/** A popup that is left closes. */
	void NoteFocusChanged();

	/** The content, and what is open above it. */
	TPanelChildren<FBasicLayoutSlot> Layers;
	TSharedPtr<SPopupLayer> PopupLayer;
	TWeakPtr<SWidget> FocusBeforePopup;

	FVector2D ClientSize = FVector2D(0.0, 0.0);
	float Scale = 1.0f;
	TSharedPtr<const FSlateDrawChunk> DisplayList;
	TArray<FSlateRect> Damage;
};
