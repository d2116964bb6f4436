// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

/** A line around the letters, in units. */
struct FFontOutlineSettings
{
	int32 OutlineSize = 0;
	FLinearColor OutlineColor = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);

	bool operator==(const FFontOutlineSettings& Other) const
	{
		return OutlineSize == Other.OutlineSize && OutlineColor == Other.OutlineColor;
	}
};

/** A face and its size. */
struct FSlateFontInfo
{
	/** The word for a face: "Regular", "Bold", "Mono" and the like. */
	FName TypefaceFontName;

	/** In points, at 96 dots an inch: 10 points are 13.33 units. */
	float Size = 10.0f;
	FFontOutlineSettings OutlineSettings;

	FSlateFontInfo();
	FSlateFontInfo(const FName& InTypefaceFontName, float InSize, const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings());

	bool operator==(const FSlateFontInfo& Other) const;
	friend uint32 GetTypeHash(const FSlateFontInfo& Font);
};
