// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/Layout/SBorder.h"

struct FTableRowStyle;

/** One option in the list of a combo box. */
class SComboRow final : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SComboRow) {}
	SLATE_STYLE_ARGUMENT(FTableRowStyle, Style)
	SLATE_ARGUMENT(FMargin, Padding)
	SLATE_ARGUMENT(bool, IsSelected)
	SLATE_EVENT(FSimpleDelegate, OnChosen)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetHighlighted(bool bInHighlighted);
	bool IsHighlighted() const { return bHighlighted; }
	bool IsSelected() const { return bSelected; }

	/** What a click does, for assistive technology. */
	void Choose() const { OnChosen.ExecuteIfBound(); }

private:
	const FTableRowStyle* Style = nullptr;
	FSimpleDelegate OnChosen;
	bool bHighlighted = false;
	bool bSelected = false;
};
