// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

struct FSlateBrush;

// Names an image in a style set, which is looked up only when the icon is shown.
struct FSlateIcon
{
	FSlateIcon() = default;
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName)
		: StyleSetName(InStyleSetName)
		, StyleName(InStyleName)
	{
	}

	const FName& GetStyleSetName() const { return StyleSetName; }
	const FName& GetStyleName() const { return StyleName; }
	bool IsSet() const { return !StyleName.IsNone(); }

	// Null where the style set is not registered or has no such image.
	const FSlateBrush* GetIcon() const;

private:
	FName StyleSetName;
	FName StyleName;
};
