// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Textures/SlateIcon.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

const FSlateBrush* FSlateIcon::GetIcon() const
{
	const ISlateStyle* StyleSet = FSlateStyleRegistry::FindSlateStyle(StyleSetName);
	return StyleSet ? StyleSet->GetOptionalBrush(StyleName, nullptr, nullptr) : nullptr;
}
