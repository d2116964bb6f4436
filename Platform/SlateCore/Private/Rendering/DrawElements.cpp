// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Rendering/DrawElements.h"

FSlateDrawElement::FSlateDrawElement(
	FPayload InPayload, const FPaintGeometry& InGeometry, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
	: Payload(MoveTemp(InPayload))
	, Geometry(InGeometry)
	, Tint(InTint)
	, DrawEffects(InDrawEffects)
{
}

void FSlateDrawElement::MakeBox(FSlateWindowElementList& OutDrawElements, uint32, const FPaintGeometry& PaintGeometry,
	const FSlateBrush* Brush, ESlateDrawEffect DrawEffects, const FLinearColor& Tint)
{
	if (Brush != nullptr && Brush->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		OutDrawElements.AddElement(FSlateDrawElement(FSlateBoxPayload{*Brush}, PaintGeometry, DrawEffects, Tint));
	}
}

void FSlateDrawElement::MakeShapedText(FSlateWindowElementList& OutDrawElements, uint32, const FPaintGeometry& PaintGeometry,
	const TSharedRef<const FShapedText>& ShapedText, ESlateDrawEffect DrawEffects, const FLinearColor& Tint)
{
	OutDrawElements.AddElement(FSlateDrawElement(FSlateTextPayload{ShapedText}, PaintGeometry, DrawEffects, Tint));
}

void FSlateDrawElement::MakeLines(FSlateWindowElementList& OutDrawElements, uint32, const FPaintGeometry& PaintGeometry,
	const TArray<FVector2D>& Points, ESlateDrawEffect DrawEffects, const FLinearColor& Tint, bool, float Thickness)
{
	OutDrawElements.AddElement(FSlateDrawElement(FSlateLinePayload{Points, Thickness}, PaintGeometry, DrawEffects, Tint));
}

FSlateRect FSlateDrawElement::GetBounds() const
{
	const FSlateRect Room = Geometry.GetRenderBoundingRect();
	if (std::holds_alternative<FSlateTextPayload>(Payload))
	{
		// Letters may lean or reach out of their line.
		return Room.ExtendBy(static_cast<float>(Room.GetSize().Y) / 2.0f);
	}
	const FSlateLinePayload* Line = std::get_if<FSlateLinePayload>(&Payload);
	if (Line == nullptr)
	{
		return Room;
	}
	FSlateRect Bounds;
	for (const FVector2D& Point : Line->Points)
	{
		const FVector2D At = Geometry.RenderTransform.TransformPoint(Point);
		const float X = static_cast<float>(At.X);
		const float Y = static_cast<float>(At.Y);
		Bounds = Bounds.Expand(FSlateRect(X, Y, X, Y).ExtendBy(FMath::Max(1.0f, Line->Thickness * Geometry.DrawScale)));
	}
	return Bounds;
}
