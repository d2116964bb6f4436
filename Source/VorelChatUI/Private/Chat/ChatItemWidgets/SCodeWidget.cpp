// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatItemWidgets/SCodeWidget.h"

#include "HAL/PlatformApplicationMisc.h"
#include "Styling/AppStyle.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Syntax/CodeBlockMarshaller.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/SMultiLineEditableText.h"

void SCodeWidget::Construct(const FArguments& InArgs)
{
	if (!CodeMarshaller)
	{
		CodeMarshaller = FCodeBlockMarshaller::Create();
	}
	CodeText = InArgs._Text;
	// Works on the code as source text: an escape inside a string literal breaks the line too.
	CodeText = FText::FromString(CodeText.ToString().Replace(TEXT("\\n"), TEXT("\n"), ESearchCase::IgnoreCase));
	ChildSlot[MakeInterface()];
}

// clang-format off
TSharedRef<SWidget> SCodeWidget::MakeInterface()
{
	return SNew(SOverlay)
		+ SOverlay::Slot()
		[
			MakeCodeView()
		]
		+ SOverlay::Slot()
		.HAlign(HAlign_Right)
		.VAlign(VAlign_Top)
		.Padding(0.0f, 4.0f, 4.0f, 0.0f)
		[
			MakeCopyButton()
		];
}

TSharedRef<SWidget> SCodeWidget::MakeCodeView()
{
	return SNew(SBox)
		.MinDesiredWidth(620.0f)
		.MaxDesiredWidth(620.0f)
		[
			SNew(SBorder)
			.BorderImage(FVorelAIStyle::Get().GetBrush("VorelAI.Background.Dark"))
			.Padding(FMargin(10.0f, 0.0f, 10.0f, 10.0f))
			[
				SAssignNew(CodeTextBox, SMultiLineEditableText)
				.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Console"))
				.Text(CodeText)
				.Marshaller(CodeMarshaller)
				.AutoWrapText(false)
				.IsReadOnly(true)
				.TextShapingMethod(ETextShapingMethod::KerningOnly)
				.OverflowPolicy(ETextOverflowPolicy::Clip)
				.WrappingPolicy(ETextWrappingPolicy::DefaultWrapping)
			]
		];
}

TSharedRef<SWidget> SCodeWidget::MakeCopyButton()
{
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.HAlign(HAlign_Right)
		.AutoWidth()
		.Padding(4.0f, 4.0f, 4.0f, 4.0f)
		[
			SNew(SButton)
			.ButtonStyle(&FAppStyle::Get().GetWidgetStyle<FButtonStyle>("SimpleButton"))
			.OnClicked(this, &SCodeWidget::OnCopyClicked)
			.Text(FText::FromString(TEXT("Copy")))
			[
				SNew(SImage)
				.Image(FAppStyle::Get().GetBrush("GenericCommands.Copy"))
				.ColorAndOpacity(FSlateColor::UseForeground())
			]
		];
}
// clang-format on

FReply SCodeWidget::OnCopyClicked()
{
	if (!CodeText.IsEmpty())
	{
		FWindowsPlatformApplicationMisc::ClipboardCopy(*CodeText.ToString());
	}
	return FReply::Handled();
}
