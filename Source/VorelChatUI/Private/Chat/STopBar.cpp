// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/STopBar.h"

#include "Chat/ChatPanelActions.h"
#include "Chat/SChatHistory.h"
#include "LogVorel.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

void STopBar::Construct(const FArguments& InArgs)
{
	PanelActions = InArgs._PanelActions;
	ChildSlot[ConstructInterface()];
}

// clang-format off
TSharedRef<SWidget> STopBar::ConstructInterface()
{
	return SNew(SBorder)
		.BorderImage(FVorelAIStyle::Get().GetBrush("VorelAI.Background.Dark"))
		.Padding(FMargin(0.0f))
		[
			SNew(SBox)
			.Padding(FMargin(20.0f, 15.0f, 20.0f, 15.0f))
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.Padding(10.0f, 0.0f, 0.0f, 0.0f)
				[
					ConstructLogo()
				]
				// Pushes what follows to the right.
				+ SHorizontalBox::Slot()
				.FillWidth(1.0f)
				+ SHorizontalBox::Slot()
				.HAlign(HAlign_Right)
				.VAlign(VAlign_Center)
				.MaxWidth(25.0f)
				.AutoWidth()
				.Padding(0.0f, 0.0f, 5.0f, 0.0f)
				[
					ConstructNewChatButton()
				]
				+ SHorizontalBox::Slot()
				.HAlign(HAlign_Right)
				.AutoWidth()
				[
					ConstructChatHistory()
				]
			]
		];
}

TSharedRef<SWidget> STopBar::ConstructLogo()
{
	return SNew(SImage)
		.Image(FVorelAIStyle::Get().GetBrush("VorelAI.Logo.Small"));
}

TSharedRef<SWidget> STopBar::ConstructNewChatButton()
{
	return SNew(SBox)
		.WidthOverride(25.0f)
		.HeightOverride(25.0f)
		[
			SNew(SButton)
			.ButtonStyle(&FVorelAIStyle::Get().GetWidgetStyle<FButtonStyle>("VorelAI.Button.Primary"))
			.OnClicked(this, &STopBar::OnNewChatButtonClicked)
			.ContentPadding(FMargin(2.0f, 4.0f, 2.0f, 4.0f))
			[
				SNew(SImage)
				.Image(FVorelAIStyle::Get().GetBrush("VorelAI.Icon.NewChat"))
				.ColorAndOpacity(FVorelAIStyle::Get().GetSlateColor("VorelAI.Color.White"))
				.DesiredSizeOverride(FVector2D(12.0f, 12.0f))
			]
		];
}

TSharedRef<SWidget> STopBar::ConstructChatHistory()
{
	return SNew(SChatHistory)
		.PanelActions(PanelActions);
}
// clang-format on

FReply STopBar::OnNewChatButtonClicked()
{
	if (!PanelActions)
	{
		UE_LOG(LogVorel, Warning, TEXT("Can't request new chat, unexpected invalid action"));
		return FReply::Handled();
	}
	PanelActions->OnNewChatRequested.ExecuteIfBound();
	return FReply::Handled();
}
