// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "EditableTextPainter.h"

#include "Brushes/SlateColorBrush.h"
#include "EditableTextController.h"
#include "Rendering/DrawElements.h"
#include "Styling/SlateTypes.h"
#include "Styling/WidgetStyle.h"
#include "TextVisibility.h"

FEditableTextPainter::FEditableTextPainter(const FEditableTextController& InController, const FGeometry& InTextGeometry,
	const FSlateRect& CullingRect, FSlateWindowElementList& InElements, const FWidgetStyle& InStyle, ESlateDrawEffect InEffects)
	: Controller(InController)
	, TextGeometry(InTextGeometry)
	, VisibleArea(FindVisibleArea(InTextGeometry, CullingRect))
	, Elements(InElements)
	, Style(InStyle)
	, Effects(InEffects)
{
}

void FEditableTextPainter::PaintSelection(int32 LayerId) const
{
	const FEditableText& Text = Controller.GetText();
	if (!Text.HasSelection())
	{
		return;
	}
	TArray<FSlateRect> Rects;
	Text.GetLayout().GetSelectionRects(Text.GetSelection(), VisibleArea, Rects);
	const FLinearColor Color = Text.GetLayout().GetDefaultTextStyle().SelectedBackgroundColor.GetColor(Style);
	for (const FSlateRect& Rect : Rects)
	{
		PaintRect(Rect, Color, LayerId);
	}
}

void FEditableTextPainter::PaintText(const FSlateTextLayout& Layout, int32 LayerId) const
{
	Layout.Paint(TextGeometry, VisibleArea, Elements, LayerId, Style, Effects);
}

void FEditableTextPainter::PaintComposition(int32 LayerId) const
{
	const FEditableText& Text = Controller.GetText();
	if (!Text.IsComposing())
	{
		return;
	}
	TArray<FSlateRect> Rects;
	Text.GetLayout().GetSelectionRects(Text.GetComposition(), VisibleArea, Rects);
	const float Thickness = FMath::Max(1.0f, FMath::RoundToFloat(TextGeometry.GetScale()));
	for (FSlateRect& Rect : Rects)
	{
		Rect.Top = Rect.Bottom - Thickness;
		PaintRect(Rect, Style.GetForegroundColor(), LayerId);
	}
}

void FEditableTextPainter::PaintCaret(int32 LayerId) const
{
	if (Controller.IsCaretShown())
	{
		PaintRect(Controller.GetCaretArea(), Style.GetForegroundColor(), LayerId);
	}
}

void FEditableTextPainter::PaintRect(const FSlateRect& Rect, const FLinearColor& Color, int32 LayerId) const
{
	static const FSlateColorBrush Plain(FLinearColor::White);
	const float Scale = TextGeometry.GetScale();
	const FPaintGeometry Geometry = TextGeometry.ToPaintGeometry(Rect.GetSize() / Scale, FSlateLayoutTransform(Rect.GetTopLeft() / Scale));
	FSlateDrawElement::MakeBox(Elements, LayerId, Geometry, &Plain, Effects, Style.GetColorAndOpacityTint() * Color);
}
