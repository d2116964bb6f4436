// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/IRun.h"
#include "Layout/SlateRect.h"
#include "Rendering/RenderingCommon.h"
#include "Templates/SharedPointer.h"

class FGeometry;
class FSlateWindowElementList;
class FWidgetStyle;
class SWidget;

/** Where a stretch of a run stands: in device pixels from the layout's top left corner. */
struct FRunPlacement
{
	FTextRange Range;
	FRunTextContext Context;
	float X = 0.0f;
	float Width = 0.0f;
	float LineHeight = 0.0f;
	float BaselineY = 0.0f;
};

/** A run that can be drawn. */
class ISlateRun : public IRun
{
public:
	/** `TextGeometry` begins at the layout's top left corner. Draws one stretch, as it was measured. */
	virtual void OnPaint(const FRunPlacement& Placement, const FGeometry& TextGeometry, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const = 0;

	/** The widget that stands in the run's place, if it is one. */
	virtual TSharedPtr<SWidget> GetWidget() const { return nullptr; }

	/** Where that widget is, within the stretch that the run takes. In device pixels. */
	virtual FSlateRect GetWidgetRect(const FRunPlacement& Placement, float Scale) const { return FSlateRect(); }
};
