// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/SlateWidgetRun.h"

#include "Framework/Text/TextLayout.h"
#include "Widgets/SWidget.h"

FSlateWidgetRun::FWidgetRunInfo::FWidgetRunInfo(
	const TSharedRef<SWidget>& InWidget, const TAttribute<int16>& InBaseline, const TOptional<FVector2D>& InSize)
	: Widget(InWidget)
	, Baseline(InBaseline)
	, Size(InSize)
{
}

TSharedRef<FSlateWidgetRun> FSlateWidgetRun::Create(const TSharedRef<FTextLayout>& TextLayout, const FRunInfo& InRunInfo,
	const TSharedRef<const FString>& InText, const FWidgetRunInfo& InWidgetInfo, const FTextRange& InRange)
{
	checkf(InRange.Len() == 1 && InRange.EndIndex <= InText->Len(), TEXT("A widget run stands in the place of one character of the model"));
	return MakeShareable(new FSlateWidgetRun(InRunInfo, InWidgetInfo, InRange));
}

FSlateWidgetRun::FSlateWidgetRun(const FRunInfo& InRunInfo, const FWidgetRunInfo& InWidgetInfo, const FTextRange& InRange)
	: RunInfo(InRunInfo)
	, Info(InWidgetInfo)
	, Range(InRange)
{
}

FVector2D FSlateWidgetRun::GetSize() const
{
	return Info.Size.IsSet() ? Info.Size.GetValue() : Info.Widget->GetDesiredSize();
}

int32 FSlateWidgetRun::GetBaseLine(float Scale) const
{
	return FMath::RoundToInt(Info.Baseline.Get() * Scale);
}

int32 FSlateWidgetRun::GetMaxHeight(float Scale) const
{
	return FMath::CeilToInt(static_cast<float>(GetSize().Y) * Scale);
}

FVector2D FSlateWidgetRun::Measure(int32 StartIndex, int32 EndIndex, float Scale, const FRunTextContext& TextContext) const
{
	return StartIndex == EndIndex ? FVector2D(0.0, GetMaxHeight(Scale)) : GetSize() * Scale;
}

float FSlateWidgetRun::GetCaretOffset(const FTextRange& Stretch, int32 Index, float Scale, const FRunTextContext& TextContext) const
{
	return Index <= Range.BeginIndex ? 0.0f : static_cast<float>(GetSize().X) * Scale;
}

FSlateRect FSlateWidgetRun::GetWidgetRect(const FRunPlacement& Placement, float Scale) const
{
	const float Bottom = Placement.BaselineY - GetBaseLine(Scale);
	return FSlateRect(Placement.X, Bottom - GetMaxHeight(Scale), Placement.X + static_cast<float>(GetSize().X) * Scale, Bottom);
}
