// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/Input/SButton.h"

/** A piece of text that leads somewhere, underlined as its style says. */
class SHyperlink : public SButton
{
public:
	SLATE_BEGIN_ARGS(SHyperlink) {}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_STYLE_ARGUMENT(FHyperlinkStyle, Style)
	SLATE_ARGUMENT(TOptional<FMargin>, Padding)
	SLATE_EVENT(FSimpleDelegate, OnNavigate)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

private:
	FReply HandleClicked();

	FSimpleDelegate OnNavigate;
};
