// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Math/Vector2D.h"

class FTextLayout;

/** How a widget's text is wrapped, in units: at a fixed width, at the width that the widget is given, or at the lesser of both. */
struct FTextWrapping
{
	/** Zero for none. */
	float WrapTextAt = 0.0f;
	bool bAutoWrapText = false;
	/** Zero until the widget is arranged. */
	float AllottedWidth = 0.0f;

	/**
	 * Wraps and returns the size to wish for. The width is that of the text before it was squeezed into the allotted one: a wish that
	 * followed the allotted width could never grow again. The height is that of the text as it is wrapped.
	 */
	FVector2D LayOut(FTextLayout& Layout, float Scale) const;

private:
	float FindWidth() const;
};
