// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/Geometry.h"
#include "CoreMinimal.h"

class SWidget;

/** A widget and the room it was given. */
class FArrangedWidget
{
public:
	FArrangedWidget(const TSharedRef<SWidget>& InWidget, const FGeometry& InGeometry)
		: Geometry(InGeometry)
		, Widget(InWidget)
	{
	}

	bool operator==(const FArrangedWidget& Other) const { return Widget == Other.Widget && Geometry == Other.Geometry; }

	FGeometry Geometry;
	TSharedRef<SWidget> Widget;
};
