// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Layout/SBorder.h"

#include "Styling/SlateBrush.h"

SBorder::SBorder()
	: BorderImageAttribute(*this, nullptr)
	, BorderBackgroundColorAttribute(*this, FLinearColor::White)
{
}

void SBorder::Construct(const FArguments& InArgs)
{
	SetBorderImage(InArgs._BorderImage);
	BorderBackgroundColorAttribute.Assign(*this, InArgs._BorderBackgroundColor);
	SetColorAndOpacity(InArgs._ColorAndOpacity);
	SetForegroundColor(InArgs._ForegroundColor);
	ChildSlot.Padding(InArgs._Padding).HAlign(InArgs._HAlign).VAlign(InArgs._VAlign)[InArgs._Content.Widget];
}

int32 SBorder::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	if (const FSlateBrush* Background = GetBackground(bEnabled))
	{
		const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint() * BorderBackgroundColorAttribute.Get().GetColor(InWidgetStyle) *
								  Background->GetTint(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Background,
			bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect, Tint);
	}
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
}
