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

FSlateRect FSlateDrawElement::GetBounds() const
{
	const FSlateRect Room = Geometry.GetRenderBoundingRect();
	// Letters may lean or reach out of their line.
	return std::holds_alternative<FSlateTextPayload>(Payload) ? Room.ExtendBy(static_cast<float>(Room.GetSize().Y) / 2.0f) : Room;
}
