// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Layout/SBox.h"

#include "Layout/LayoutUtils.h"

namespace
{
double Limit(double Wish, FOptionalSize Override, FOptionalSize Min, FOptionalSize Max)
{
	if (Override.IsSet())
	{
		return Override.Get();
	}
	// Where both limits cannot be met, the lower one stands.
	const double Most = Max.IsSet() ? FMath::Min<double>(Wish, Max.Get()) : Wish;
	return Min.IsSet() ? FMath::Max<double>(Most, Min.Get()) : Most;
}
} // namespace

SBox::SBox()
	: WidthOverride(*this)
	, HeightOverride(*this)
	, MinDesiredWidth(*this)
	, MinDesiredHeight(*this)
	, MaxDesiredWidth(*this)
	, MaxDesiredHeight(*this)
{
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride.Assign(*this, InArgs._WidthOverride);
	HeightOverride.Assign(*this, InArgs._HeightOverride);
	MinDesiredWidth.Assign(*this, InArgs._MinDesiredWidth);
	MinDesiredHeight.Assign(*this, InArgs._MinDesiredHeight);
	MaxDesiredWidth.Assign(*this, InArgs._MaxDesiredWidth);
	MaxDesiredHeight.Assign(*this, InArgs._MaxDesiredHeight);
	ChildSlot.Padding(InArgs._Padding).HAlign(InArgs._HAlign).VAlign(InArgs._VAlign)[InArgs._Content.Widget];
}

FVector2D SBox::ComputeDesiredSize(float) const
{
	const FVector2D Wish = ComputeSlotDesiredSize(ChildSlot);
	return FVector2D(Limit(Wish.X, WidthOverride.Get(), MinDesiredWidth.Get(), MaxDesiredWidth.Get()),
		Limit(Wish.Y, HeightOverride.Get(), MinDesiredHeight.Get(), MaxDesiredHeight.Get()));
}
