// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Input/SComboRow.h"

#include "Styling/SlateTypes.h"

void SComboRow::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style;
	bSelected = InArgs._IsSelected;
	OnChosen = InArgs._OnChosen;
	SBorder::Construct(SBorder::FArguments().Padding(InArgs._Padding).VAlign(VAlign_Center)[InArgs._Content.Widget]);
}

void SComboRow::SetHighlighted(bool bInHighlighted)
{
	bHighlighted = bInHighlighted;
	const FSlateBrush* const WhileHighlighted = bSelected ? &Style->ActiveHoveredBrush : &Style->InactiveHoveredBrush;
	const FSlateBrush* const Otherwise = bSelected ? &Style->ActiveBrush : nullptr;
	SetBorderImage(bHighlighted ? WhileHighlighted : Otherwise);
}
