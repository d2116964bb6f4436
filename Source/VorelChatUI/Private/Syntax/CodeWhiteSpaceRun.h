// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Text/SlateTextRun.h"

// White space in which a tab is as wide as a number of spaces, whatever the font makes of it.
class FCodeWhiteSpaceRun : public FSlateTextRun
{
public:
	FCodeWhiteSpaceRun(const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText, const FTextBlockStyle& InStyle,
		const FTextRange& InRange, int32 InNumSpacesPerTab);

	static TSharedRef<FCodeWhiteSpaceRun> Create(const FRunInfo& RunInfo, const TSharedRef<const FString>& Text,
		const FTextBlockStyle& Style, const FTextRange& Range, int32 NumSpacesPerTab);

	FVector2D Measure(int32 StartIndex, int32 EndIndex, float Scale, const FRunTextContext& TextContext) const override;

private:
	int32 NumSpacesPerTab;
	// At scale 1.
	float TabWidth;
	float SpaceWidth;
};
