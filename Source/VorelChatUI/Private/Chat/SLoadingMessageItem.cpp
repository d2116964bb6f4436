// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SLoadingMessageItem.h"

#include "Chat/SLoadingAnimation.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "VorelChatUI"

void SLoadingMessageItem::Construct(const FArguments& InArgs)
{
	Args = InArgs;
	ChildSlot[ConstructInterface()];
}

// clang-format off
TSharedRef<SWidget> SLoadingMessageItem::ConstructInterface()
{
	return SNew(SBorder)
		.BorderImage(FVorelAIStyle::Get().GetBrush("VorelAI.Background.Medium.Rounded.Small"))
		.Padding(FMargin(10.0f, 5.0f, 10.0f, 5.0f))
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(0.0f, 0.0f, 0.0f, 5.0f)
			[
				SNew(STextBlock)
				.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.BodyBold"))
				.Text(LOCTEXT("LoadingMessageRoleText", "Vorel"))
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(1.0f, 5.0f, 0.0f, 5.0f)
			.HAlign(HAlign_Left)
			[
				SNew(SLoadingAnimation)
			]
		];
}
// clang-format on

#undef LOCTEXT_NAMESPACE
