// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatItemWidgets/SMarkdownTextbox.h"

#include "Decorators/CodeBlockDecorator.h"
#include "Framework/Text/RichTextLayoutMarshaller.h"
#include "Styling/StyleSheets/VorelMarkdownStyle.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/SMultiLineEditableText.h"

// clang-format off
void SMarkdownTextbox::Construct(const FArguments& InArgs)
{
	const FVorelMarkdownStyle& Style = FVorelMarkdownStyle::Get();
	const TArray<TSharedRef<ITextDecorator>> Decorators = {FCodeBlockDecorator::Create()};
	const TSharedRef<FRichTextLayoutMarshaller> Marshaller = FRichTextLayoutMarshaller::Create(Decorators, &Style);

	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.Padding(0.0f, 0.0f, 0.0f, 0.0f)
		[
			SAssignNew(TextBlock, SMultiLineEditableText)
			.Font(Style.GetWidgetStyle<FTextBlockStyle>("VorelMarkdown.Paragraph").Font)
			.Text(InArgs._Text)
			.Marshaller(Marshaller)
			.ClearTextSelectionOnFocusLoss(false)
			.AutoWrapText(true)
			.AllowMultiLine(true)
			.Margin(FMargin(4.0f, 4.0f, 4.0f, 4.0f))
			.IsReadOnly(true)
		]
	];
}
// clang-format on

void SMarkdownTextbox::SetMarkdownText(const FString& Markup)
{
	if (TextBlock)
	{
		TextBlock->SetText(FText::FromString(Markup));
	}
}
