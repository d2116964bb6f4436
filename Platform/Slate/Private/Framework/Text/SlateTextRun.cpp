// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/SlateTextRun.h"

#include "Containers/StringView.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateRenderer.h"
#include "RunLooks.h"
#include "Styling/SlateTypes.h"
#include "Styling/WidgetStyle.h"

#include <memory_resource>

namespace
{
constexpr int32 SpacesPerTab = 4;

FShapedTextCache& GetShapedTextCache()
{
	return FSlateApplication::Get().GetRenderer()->GetShapedTextCache();
}

/** A piece of the layout, whose edges are put on whole device pixels: neighbours then meet without a gap or an overlap. */
FPaintGeometry MakePixelGeometry(const FGeometry& TextGeometry, float Left, float Top, float Right, float Height)
{
	const float Scale = TextGeometry.GetScale();
	const FVector2D Begin(FMath::RoundToFloat(Left), FMath::RoundToFloat(Top));
	const FVector2D Size(FMath::RoundToFloat(Right) - Begin.X, FMath::Max(1.0f, FMath::RoundToFloat(Height)));
	return TextGeometry.ToPaintGeometry(Size / Scale, FSlateLayoutTransform(Begin / Scale));
}
} // namespace

TSharedRef<FSlateTextRun> FSlateTextRun::Create(
	const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText, const FTextBlockStyle& Style, const FTextRange& InRange)
{
	return Create(InRunInfo, InText, RunLooks::Share(Style), InRange);
}

TSharedRef<FSlateTextRun> FSlateTextRun::Create(const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText,
	const TSharedRef<const FTextBlockStyle>& Style, const FTextRange& InRange)
{
	// Long texts have runs by the hundred thousand, which come and go together. The pool outlives whatever still holds one at the end.
	static std::pmr::unsynchronized_pool_resource& Pool = *new std::pmr::unsynchronized_pool_resource;
	const std::pmr::polymorphic_allocator<FSlateTextRun> Allocator(&Pool);
	return TRawPtrProxy<FSlateTextRun>{std::allocate_shared<FSlateTextRun>(Allocator, FMakeKey(), InRunInfo, InText, Style, InRange)};
}

FSlateTextRun::FSlateTextRun(
	const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText, const FTextBlockStyle& InStyle, const FTextRange& InRange)
	: FSlateTextRun(FMakeKey(), InRunInfo, InText, RunLooks::Share(InStyle), InRange)
{
}

FSlateTextRun::FSlateTextRun(FMakeKey, const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText,
	const TSharedRef<const FTextBlockStyle>& InStyle, const FTextRange& InRange)
	: SharedRunInfo(RunLooks::Share(InRunInfo))
	, SharedStyle(InStyle)
	, RunInfo(*SharedRunInfo)
	, Text(InText)
	, Style(*SharedStyle)
	, Range(InRange)
{
	check(Range.BeginIndex >= 0 && Range.BeginIndex <= Range.EndIndex);
}

int32 FSlateTextRun::GetBaseLine(float Scale) const
{
	return -FMath::RoundToInt(GetShapedTextCache().GetMetrics(Style.Font, Scale).Descent);
}

int32 FSlateTextRun::GetMaxHeight(float Scale) const
{
	const int32 Shadow = FMath::RoundToInt(FMath::Abs(static_cast<float>(Style.ShadowOffset.Y) * Scale));
	return FMath::CeilToInt(GetShapedTextCache().GetMetrics(Style.Font, Scale).LineHeight) + Shadow;
}

FVector2D FSlateTextRun::Measure(int32 StartIndex, int32 EndIndex, float Scale, const FRunTextContext& TextContext) const
{
	const FVector2D Shadow(EndIndex == Range.EndIndex ? FMath::Abs(Style.ShadowOffset.X * Scale) : 0.0, 0.0);
	const FVector2D Empty = Shadow + FVector2D(0.0, GetMaxHeight(Scale));
	if (StartIndex == EndIndex)
	{
		return Empty;
	}
	const float Width = Shape(FTextRange(StartIndex, EndIndex), Scale, TextContext)->Width;
	const bool bIsTab = EndIndex == StartIndex + 1 && (*Text)[StartIndex] == TEXT('\t');
	return Empty + FVector2D(bIsTab ? Width * SpacesPerTab : Width, 0.0);
}

float FSlateTextRun::GetCaretOffset(const FTextRange& Stretch, int32 Index, float Scale, const FRunTextContext& TextContext) const
{
	return Shape(Stretch, Scale, TextContext)->CaretOffsets[Index - Stretch.BeginIndex];
}

bool FSlateTextRun::IsSameAs(const IRun& Other) const
{
	// A derived run may hold what this one does not know of.
	if (typeid(Other) != typeid(FSlateTextRun) || typeid(*this) != typeid(FSlateTextRun))
	{
		return false;
	}
	const FSlateTextRun& OtherRun = static_cast<const FSlateTextRun&>(Other);
	const bool bSameStyle = &Style == &OtherRun.Style || Style == OtherRun.Style;
	const bool bSameInfo = &RunInfo == &OtherRun.RunInfo || RunInfo == OtherRun.RunInfo;
	return bSameStyle && bSameInfo && Range == OtherRun.Range;
}

TSharedRef<const FShapedText> FSlateTextRun::Shape(const FTextRange& Stretch, float Scale, const FRunTextContext& TextContext) const
{
	const FStringView View = FStringView(*Text).Mid(Stretch.BeginIndex, Stretch.Len());
	return GetShapedTextCache().Shape(View, Style.Font, Scale, TextContext.TextDirection, TextContext.TextShapingMethod);
}

void FSlateTextRun::OnPaint(const FRunPlacement& Placement, const FGeometry& TextGeometry, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const
{
	PaintText(Placement, TextGeometry, OutDrawElements, LayerId, InWidgetStyle, DrawEffects);
	PaintLines(Placement, TextGeometry, OutDrawElements, LayerId, InWidgetStyle, DrawEffects);
}

void FSlateTextRun::PaintText(const FRunPlacement& Placement, const FGeometry& TextGeometry, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const
{
	const float Scale = TextGeometry.GetScale();
	const TSharedRef<const FShapedText> Shaped = Shape(Placement.Range, Scale, Placement.Context);
	const float Ascent = GetShapedTextCache().GetMetrics(Style.Font, Scale).Ascent;
	const FVector2D Offset = FVector2D(Placement.X, Placement.BaselineY - Ascent) / Scale;
	const FVector2D Size = FVector2D(Shaped->Width, Placement.LineHeight) / Scale;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	if (Style.ShadowOffset.X != 0.0 || Style.ShadowOffset.Y != 0.0)
	{
		FSlateDrawElement::MakeShapedText(OutDrawElements, LayerId,
			TextGeometry.ToPaintGeometry(Size, FSlateLayoutTransform(Offset + Style.ShadowOffset)), Shaped, DrawEffects,
			Tint * Style.ShadowColorAndOpacity);
	}
	FSlateDrawElement::MakeShapedText(OutDrawElements, LayerId, TextGeometry.ToPaintGeometry(Size, FSlateLayoutTransform(Offset)), Shaped,
		DrawEffects, Tint * Style.ColorAndOpacity.GetColor(InWidgetStyle));
}

void FSlateTextRun::PaintLines(const FRunPlacement& Placement, const FGeometry& TextGeometry, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const
{
	const FFontMetrics& Metrics = GetShapedTextCache().GetMetrics(Style.Font, TextGeometry.GetScale());
	const float Thickness = FMath::Max(1.0f, Metrics.UnderlineThickness);
	const float Right = Placement.X + Placement.Width;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	if (Style.UnderlineBrush.DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		// The brush has the color of the link itself.
		const float Top = Placement.BaselineY + Metrics.UnderlineOffset - Thickness / 2.0f;
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, MakePixelGeometry(TextGeometry, Placement.X, Top, Right, Thickness),
			&Style.UnderlineBrush, DrawEffects, Tint * Style.UnderlineBrush.GetTint(InWidgetStyle));
	}
	if (Style.StrikeBrush.DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		// The brush is plain; the line takes the color of the letters that it strikes.
		constexpr float MiddleOfLetters = 0.3f;
		const float Top = Placement.BaselineY - Metrics.Ascent * MiddleOfLetters - Thickness / 2.0f;
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, MakePixelGeometry(TextGeometry, Placement.X, Top, Right, Thickness),
			&Style.StrikeBrush, DrawEffects,
			Tint * Style.StrikeBrush.GetTint(InWidgetStyle) * Style.ColorAndOpacity.GetColor(InWidgetStyle));
	}
}
