// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/SlateRect.h"
#include "Math/Vector2D.h"

/** Which part of a text is seen in a smaller view. All lengths are in device pixels. */
class FTextScroller
{
public:
	void SetSizes(const FVector2D& InView, const FVector2D& InContent);
	/** False where there is nothing further in that direction. */
	bool ScrollBy(const FVector2D& Delta);
	/** The least way. A rectangle larger than the view shows its top left. */
	bool BringIntoView(const FSlateRect& Rect);

	const FVector2D& GetOffset() const { return Offset; }
	const FVector2D& GetView() const { return View; }

private:
	FVector2D View;
	FVector2D Content;
	FVector2D Offset;
};
