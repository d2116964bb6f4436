// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Input/SHyperlink.h"

#include "Styling/CoreStyle.h"

void SHyperlink::Construct(const FArguments& InArgs)
{
	OnNavigate = InArgs._OnNavigate;
	const FHyperlinkStyle& LinkStyle =
		InArgs._Style != nullptr ? *InArgs._Style : FCoreStyle::Get().GetWidgetStyle<FHyperlinkStyle>(TEXT("Hyperlink"));
	SButton::Construct(SButton::FArguments()
						   .Text(InArgs._Text)
						   .TextStyle(&LinkStyle.TextStyle)
						   .ButtonStyle(&LinkStyle.UnderlineStyle)
						   .ContentPadding(InArgs._Padding.Get(LinkStyle.Padding))
						   .OnClicked(this, &SHyperlink::HandleClicked));
	SetCursor(EMouseCursor::Hand);
}

FReply SHyperlink::HandleClicked()
{
	OnNavigate.ExecuteIfBound();
	return FReply::Handled();
}
