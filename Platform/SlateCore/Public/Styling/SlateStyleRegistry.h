// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class ISlateStyle;
struct FSlateBrush;

/** The style sets that are in use. It does not own them: a set unregisters itself before it goes. */
class FSlateStyleRegistry
{
public:
	/** A set that is registered already is left as it is. */
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const FName& StyleSetName);

	/** Null where no set of that name is registered. */
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);

	/** The style name of a brush that a registered set holds; none for any other brush. */
	static FName FindBrushName(const FSlateBrush* Brush);
};
