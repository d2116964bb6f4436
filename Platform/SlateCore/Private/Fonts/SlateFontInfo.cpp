// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Fonts/SlateFontInfo.h"

FSlateFontInfo::FSlateFontInfo()
	: TypefaceFontName(TEXT("Regular"))
{
}

FSlateFontInfo::FSlateFontInfo(const FName& InTypefaceFontName, float InSize, const FFontOutlineSettings& InOutlineSettings)
	: TypefaceFontName(InTypefaceFontName)
	, Size(InSize)
	, OutlineSettings(InOutlineSettings)
{
}

bool FSlateFontInfo::operator==(const FSlateFontInfo& Other) const
{
	return TypefaceFontName == Other.TypefaceFontName && Size == Other.Size && OutlineSettings == Other.OutlineSettings;
}

uint32 GetTypeHash(const FSlateFontInfo& Font)
{
	return HashCombine(
		HashCombine(GetTypeHash(Font.TypefaceFontName), GetTypeHash(Font.Size)), GetTypeHash(Font.OutlineSettings.OutlineSize));
}
