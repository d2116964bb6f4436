// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"

class SWindow;

/** What lies under a point of a window. */
class FSlateHitTest
{
public:
	/**
	 * From the window down to the uppermost widget under the point; empty beside the window. Point is in device pixels. The path ends
	 * before the first disabled widget, so that input for it goes to what is around it.
	 */
	static TArray<FArrangedWidget> FindPath(SWindow& Window, const FVector2D& Point);

private:
	static bool Visit(const FArrangedWidget& Candidate, const FVector2D& Point, TArray<FArrangedWidget>& Path);
};
