// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/SlateStyleRegistry.h"

#include "Styling/ISlateStyle.h"

namespace
{
TMap<FName, const ISlateStyle*>& GetRegistry()
{
	static TMap<FName, const ISlateStyle*> Registry;
	return Registry;
}
} // namespace

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	if (FindSlateStyle(InSlateStyle.GetStyleSetName()) == nullptr)
	{
		GetRegistry().Add(InSlateStyle.GetStyleSetName(), &InSlateStyle);
	}
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	if (FindSlateStyle(InSlateStyle.GetStyleSetName()) == &InSlateStyle)
	{
		UnRegisterSlateStyle(InSlateStyle.GetStyleSetName());
	}
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const FName& StyleSetName)
{
	GetRegistry().Remove(StyleSetName);
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	return GetRegistry().FindRef(InSlateStyleName);
}

FName FSlateStyleRegistry::FindBrushName(const FSlateBrush* Brush)
{
	for (const auto& Entry : GetRegistry())
	{
		const FName Name = Entry.Value->FindBrushName(Brush);
		if (Name != NAME_None)
		{
			return Name;
		}
	}
	return FName();
}
