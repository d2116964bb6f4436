// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Ticker.h"
#include "Framework/Text/TextLocation.h"
#include "Math/Vector2D.h"
#include "Templates/SharedPointer.h"

class FEditableTextController;
class FGeometry;
class FPointerEvent;
class FReply;
class SWidget;

/**
 * Selecting with the mouse: a click places the caret, a second one selects the word, a third one the line, and dragging goes on in what the
 * clicks chose. Positions are in device pixels from the view's top left corner.
 */
class FEditableTextMouse
{
public:
	explicit FEditableTextMouse(FEditableTextController& InController)
		: Controller(InController)
	{
	}
	~FEditableTextMouse() { EndDrag(); }

	FReply OnMouseButtonDown(const TSharedRef<SWidget>& Widget, const FGeometry& Geometry, const FPointerEvent& Event);
	FReply OnMouseButtonDoubleClick(const TSharedRef<SWidget>& Widget, const FGeometry& Geometry, const FPointerEvent& Event);
	FReply OnMouseMove(const FGeometry& Geometry, const FPointerEvent& Event);
	FReply OnMouseButtonUp(const FPointerEvent& Event);
	FReply OnMouseWheel(const FPointerEvent& Event);
	void EndDrag();

private:
	enum class EUnit : uint8
	{
		Character,
		Word,
		Line
	};

	void Press(const FVector2D& Position, bool bExtendSelection);
	bool IsThirdClick(const FVector2D& Position) const;
	void BeginDrag(EUnit InUnit, const FVector2D& Position);
	void ExtendTo(const FVector2D& Position);
	FTextSelection FindUnit(const FVector2D& Position) const;
	void ScrollWhileOutside();
	bool ScrollTowards(float DeltaTime);
	/** How far outside of the view, on the side it left. */
	FVector2D FindOvershoot() const;

	FEditableTextController& Controller;
	EUnit Unit = EUnit::Character;
	/** What the drag began with stays selected. */
	FTextSelection Origin;
	FVector2D LastPosition;
	FVector2D DoubleClickPosition;
	double DoubleClickTime = -1.0;
	/** Runs while the mouse drags outside of the view. */
	FTSTicker::FDelegateHandle ScrollTicker;
	bool bIsDragging = false;
};
