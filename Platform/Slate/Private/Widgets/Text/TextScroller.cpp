// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextScroller.h"

namespace
{
double FindOffset(double Offset, double View, double Begin, double End)
{
	return FMath::Min(FMath::Max(Offset, End - View), Begin);
}
} // namespace

void FTextScroller::SetSizes(const FVector2D& InView, const FVector2D& InContent)
{
	View = InView;
	Content = InContent;
	ScrollBy(FVector2D::ZeroVector);
}

bool FTextScroller::ScrollBy(const FVector2D& Delta)
{
	const FVector2D Former = Offset;
	const FVector2D Wish = Offset + Delta;
	// Whole pixels keep the letters sharp.
	const auto Limit = [](double Value, double Last)
	{
		return static_cast<double>(FMath::RoundToInt(FMath::Clamp(Value, 0.0, FMath::Max(Last, 0.0))));
	};
	Offset = FVector2D(Limit(Wish.X, Content.X - View.X), Limit(Wish.Y, Content.Y - View.Y));
	return Offset != Former;
}

bool FTextScroller::BringIntoView(const FSlateRect& Rect)
{
	const FVector2D Wish(FindOffset(Offset.X, View.X, Rect.Left, Rect.Right), FindOffset(Offset.Y, View.Y, Rect.Top, Rect.Bottom));
	return ScrollBy(Wish - Offset);
}
