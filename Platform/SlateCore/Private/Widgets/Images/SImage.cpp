// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Images/SImage.h"

#include "Styling/SlateBrush.h"

SImage::SImage()
	: ImageAttribute(*this, nullptr)
	, ColorAndOpacityAttribute(*this, FLinearColor::White)
	, DesiredSizeOverrideAttribute(*this)
{
}

void SImage::Construct(const FArguments& InArgs)
{
	ImageAttribute.Assign(*this, InArgs._Image);
	ColorAndOpacityAttribute.Assign(*this, InArgs._ColorAndOpacity);
	DesiredSizeOverrideAttribute.Assign(*this, InArgs._DesiredSizeOverride);
}

FVector2D SImage::ComputeDesiredSize(float) const
{
	const FSlateBrush* Image = GetImage();
	return DesiredSizeOverrideAttribute.Get().Get(Image != nullptr ? Image->GetImageSize() : FVector2D(0.0, 0.0));
}

int32 SImage::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	if (const FSlateBrush* Image = GetImage())
	{
		const FLinearColor Tint =
			InWidgetStyle.GetColorAndOpacityTint() * ColorAndOpacityAttribute.Get().GetColor(InWidgetStyle) * Image->GetTint(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Image,
			ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect, Tint);
	}
	return LayerId;
}
