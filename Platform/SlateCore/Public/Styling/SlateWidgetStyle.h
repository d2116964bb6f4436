// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

/** The base of what a style set holds for one kind of widget; each has a static TypeName and GetDefault. */
struct FSlateWidgetStyle
{
	virtual ~FSlateWidgetStyle() = default;
	virtual const FName GetTypeName() const = 0;
};
