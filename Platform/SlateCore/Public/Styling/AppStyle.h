// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Styling/ISlateStyle.h"

/** The look of the editor: the names that every tool looks up. */
class FAppStyle
{
public:
	static const ISlateStyle& Get();
	static const FName GetAppStyleSetName();

	static const FSlateBrush* GetBrush(const FName& PropertyName) { return Get().GetBrush(PropertyName); }
	static const FSlateColor GetSlateColor(const FName& PropertyName) { return Get().GetSlateColor(PropertyName); }
};
