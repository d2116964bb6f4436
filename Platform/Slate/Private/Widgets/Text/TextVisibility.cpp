// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextVisibility.h"

FSlateRect FindVisibleArea(const FGeometry& TextGeometry, const FSlateRect& CullingRect)
{
	constexpr float Overhang = 8.0f;
	const double Scale = TextGeometry.GetScale();
	const FVector2D Corners[] = {FVector2D(CullingRect.Left, CullingRect.Top), FVector2D(CullingRect.Right, CullingRect.Top),
		FVector2D(CullingRect.Left, CullingRect.Bottom), FVector2D(CullingRect.Right, CullingRect.Bottom)};
	FVector2D Min = TextGeometry.AbsoluteToLocal(Corners[0]);
	FVector2D Max = Min;
	for (const FVector2D& Corner : Corners)
	{
		const FVector2D Local = TextGeometry.AbsoluteToLocal(Corner);
		Min = FVector2D(FMath::Min(Min.X, Local.X), FMath::Min(Min.Y, Local.Y));
		Max = FVector2D(FMath::Max(Max.X, Local.X), FMath::Max(Max.Y, Local.Y));
	}
	return FSlateRect(static_cast<float>(Min.X * Scale), static_cast<float>(Min.Y * Scale), static_cast<float>(Max.X * Scale),
		static_cast<float>(Max.Y * Scale))
		.ExtendBy(Overhang * static_cast<float>(Scale));
}
