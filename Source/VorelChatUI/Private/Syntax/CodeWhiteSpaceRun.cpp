// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Syntax/CodeWhiteSpaceRun.h"

#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/SlateTypes.h"

#include <algorithm>

static FVector2D MeasureText(FStringView Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& Font, float Scale)
{
	const TSharedRef<FSlateFontMeasure> FontMeasure = FSlateApplication::Get().GetRenderer()->GetFontMeasureService();
	return FontMeasure->Measure(Text, StartIndex, EndIndex, Font, true, Scale);
}

TSharedRef<FCodeWhiteSpaceRun> FCodeWhiteSpaceRun::Create(const FRunInfo& RunInfo, const TSharedRef<const FString>& Text,
	const FTextBlockStyle& Style, const FTextRange& Range, int32 NumSpacesPerTab)
{
	return MakeShared<FCodeWhiteSpaceRun>(RunInfo, Text, Style, Range, NumSpacesPerTab);
}

FCodeWhiteSpaceRun::FCodeWhiteSpaceRun(const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText, const FTextBlockStyle& InStyle,
	const FTextRange& InRange, int32 InNumSpacesPerTab)
	: FSlateTextRun(InRunInfo, InText, InStyle, InRange)
	, NumSpacesPerTab(InNumSpacesPerTab)
	, TabWidth(static_cast<float>(MeasureText(TEXT("\t"), 0, 1, InStyle.Font, 1.0f).X))
	, SpaceWidth(static_cast<float>(MeasureText(TEXT(" "), 0, 1, InStyle.Font, 1.0f).X))
{
}

FVector2D FCodeWhiteSpaceRun::Measure(int32 StartIndex, int32 EndIndex, float Scale, const FRunTextContext& TextContext) const
{
	const double DropOffsetY = FMath::Abs(Style.ShadowOffset.Y * Scale);
	const double DropOffsetX = EndIndex == Range.EndIndex ? FMath::Abs(Style.ShadowOffset.X * Scale) : 0.0;
	if (EndIndex == StartIndex)
	{
		// The scale counts twice: so it has always been, and no style of ours has a shadow.
		return FVector2D(DropOffsetX * Scale, GetMaxHeight(Scale));
	}
	const FStringView Stretch = FStringView(*Text).Mid(StartIndex, EndIndex - StartIndex);
	const auto TabCount = static_cast<float>(std::count(Stretch.begin(), Stretch.end(), TEXT('\t')));
	FVector2D Size = MeasureText(*Text, StartIndex, EndIndex, Style.Font, Scale) + FVector2D(DropOffsetX, DropOffsetY);
	Size.X -= TabCount * TabWidth * Scale;
	Size.X += TabCount * static_cast<float>(NumSpacesPerTab) * SpaceWidth * Scale;
	return Size;
}
