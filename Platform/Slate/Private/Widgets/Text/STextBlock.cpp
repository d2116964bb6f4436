// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Text/STextBlock.h"

#include "Framework/Text/SlateTextLayout.h"
#include "Framework/Text/TextLines.h"
#include "Styling/CoreStyle.h"
#include "TextVisibility.h"
#include "TextWrapping.h"

STextBlock::STextBlock()
	: TextAttribute(*this)
	, ColorAttribute(*this)
{
}

STextBlock::~STextBlock() = default;

void STextBlock::Construct(const FArguments& InArgs)
{
	FTextBlockStyle Style = InArgs._TextStyle ? *InArgs._TextStyle : FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText");
	ColorAttribute.Set(*this, Style.ColorAndOpacity);
	ColorAttribute.Assign(*this, InArgs._ColorAndOpacity);
	// The color comes in when painting, so that a change of it leaves the layout alone.
	Style.ColorAndOpacity = FSlateColor::UseForeground();
	TextLayout = FSlateTextLayout::Create(*this, Style);
	TextLayout->SetJustification(InArgs._Justification);
	Wrapping = MakeUnique<FTextWrapping>(FTextWrapping{InArgs._WrapTextAt, InArgs._AutoWrapText});
	TextAttribute.Assign(*this, InArgs._Text);
}

FVector2D STextBlock::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const FText& Text = TextAttribute.Get();
	if (!LaidOutText.IsSet() || !LaidOutText->EqualTo(Text))
	{
		LaidOutText = Text;
		TextLayout->ClearLines();
		TextLayout->AddLines(TextLines::MakePlainLines(Text.ToString()));
	}
	return Wrapping->LayOut(*TextLayout, LayoutScaleMultiplier);
}

void STextBlock::OnArranged(const FGeometry& AllottedGeometry)
{
	const float Width = static_cast<float>(AllottedGeometry.GetLocalSize().X);
	TextLayout->SetViewWidth(Width);
	if (Wrapping->bAutoWrapText && Wrapping->AllottedWidth != Width)
	{
		Wrapping->AllottedWidth = Width;
		if (ComputeDesiredSize(AllottedGeometry.GetScale()) != GetDesiredSize())
		{
			Invalidate(EInvalidateWidgetReason::Layout);
		}
	}
}

int32 STextBlock::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FWidgetStyle TextStyle = InWidgetStyle;
	TextStyle.SetForegroundColor(ColorAttribute.Get().GetColor(InWidgetStyle));
	const ESlateDrawEffect Effects = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	TextLayout->Paint(AllottedGeometry, FindVisibleArea(AllottedGeometry, MyCullingRect), OutDrawElements, LayerId, TextStyle, Effects);
	return LayerId;
}
