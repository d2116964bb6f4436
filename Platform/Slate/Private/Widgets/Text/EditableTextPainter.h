// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/Geometry.h"
#include "Rendering/RenderingCommon.h"

class FEditableTextController;
class FSlateTextLayout;
class FSlateWindowElementList;
class FWidgetStyle;

/** Draws an editable text, part by part. The style's foreground is the color of the text outside of styled runs. */
class FEditableTextPainter
{
public:
	/** `CullingRect` is absolute. All arguments outlive the painter. */
	FEditableTextPainter(const FEditableTextController& InController, const FGeometry& InTextGeometry, const FSlateRect& CullingRect,
		FSlateWindowElementList& InElements, const FWidgetStyle& InStyle, ESlateDrawEffect InEffects);

	void PaintSelection(int32 LayerId) const;
	void PaintText(const FSlateTextLayout& Layout, int32 LayerId) const;
	/** The line below what an input method has not committed. */
	void PaintComposition(int32 LayerId) const;
	void PaintCaret(int32 LayerId) const;

private:
	void PaintRect(const FSlateRect& Rect, const FLinearColor& Color, int32 LayerId) const;

	const FEditableTextController& Controller;
	const FGeometry& TextGeometry;
	FSlateRect VisibleArea;
	FSlateWindowElementList& Elements;
	const FWidgetStyle& Style;
	ESlateDrawEffect Effects;
};
