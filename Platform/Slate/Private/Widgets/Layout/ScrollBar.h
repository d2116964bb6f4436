// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/SlateTypes.h"
#include "Widgets/SWidget.h"

/**
 * The bar along the right edge of what scrolls. It keeps the offset within the ends, follows the mouse, and is shown only while there is
 * something to scroll. Lengths and offsets are in units.
 */
class FScrollBar
{
public:
	/** How far one notch of the wheel scrolls. */
	static constexpr double WheelNotchLength = 48.0;

	FScrollBar(SWidget& InOwner, const FScrollBarStyle& InStyle)
		: Owner(InOwner)
		, Style(InStyle)
	{
	}

	void SetLengths(double InContentLength, double InViewLength);
	double GetViewLength() const { return ViewLength; }

	/** Beyond the ends counts as the end. Lays the owner out again if that changes anything. */
	void SetOffset(double InOffset);
	double GetOffset() const { return Offset; }

	/** For the owner while it is laid out. */
	void GoToEnd() { Offset = GetOffsetOfEnd(); }
	double GetOffsetOfEnd() const { return FMath::Max(0.0, ContentLength - ViewLength); }

	/** The room it takes; none while it is not shown. */
	float GetThickness() const;

	/** Whether it took the event; then the owner captures the mouse, and lets it go when it is released. */
	bool OnMouseButtonDown(const FGeometry& OwnerGeometry, const FPointerEvent& MouseEvent);
	bool OnMouseMove(const FGeometry& OwnerGeometry, const FPointerEvent& MouseEvent);
	bool OnMouseButtonUp(const FPointerEvent& MouseEvent) const;
	void OnMouseLeave() { SetHovered(false); }
	void OnMouseCaptureLost();

	void Paint(
		const FGeometry& OwnerGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle) const;

private:
	struct FThumb
	{
		double Offset = 0.0;
		double Length = 0.0;
	};

	bool IsShown() const;
	FThumb GetThumb() const;
	bool IsUnder(const FGeometry& OwnerGeometry, const FPointerEvent& MouseEvent) const;
	void DragThumbTo(double LocalY);
	void SetHovered(bool bInHovered);

	SWidget& Owner;
	const FScrollBarStyle& Style;
	double ContentLength = 0.0;
	double ViewLength = 0.0;
	double Offset = 0.0;
	bool bHovered = false;
	/** While the thumb is dragged: where in it the mouse took hold. */
	TOptional<double> DragGrip;
};
