// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatItem.h"

#include "Chat/ChatItemWidgets/SMarkdownTextbox.h"
#include "Interfaces/IPluginManager.h"
#include "LogVorel.h"
#include "MarkdownParser.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "UObject/Package.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "VorelChatUI"

namespace
{

// Below the plug-in's folder: a text of many constructs, for looking at how they are drawn.
const TCHAR* const MarkdownDemoFile = TEXT("Source/VorelService/Content/Guide/Delegates.md");

} // namespace

SChatItem::~SChatItem()
{
	ReleaseMarkdownParser();
}

void SChatItem::Construct(const FArguments& InArgs)
{
	Args = InArgs;
	Initialize();
	ChildSlot[ConstructInterface()];
	InitializeMarkdownParser();
}

void SChatItem::Initialize()
{
	Role = Args._Role;
	MessageContent = Args._Message;
}

// clang-format off
TSharedRef<SWidget> SChatItem::ConstructInterface()
{
	const FText Rendered = ParseAndRenderMarkdown(MessageContent);
	return SNew(SBorder)
		.BorderImage(GetBackgroundBrush())
		.Padding(FMargin(10.0f, 5.0f, 10.0f, 5.0f))
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(0.0f, 0.0f, 0.0f, 5.0f)
			[
				SNew(STextBlock)
				.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.BodyBold"))
				.Text(GetRoleText())
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				SAssignNew(MarkdownTextbox, SMarkdownTextbox)
				.Text(Rendered)
			]
		];
}
// clang-format on

void SChatItem::AddMessageContent(const FString& Delta)
{
	if (MarkdownTextbox)
	{
		UpdateMessageContent(MessageContent + Delta);
	}
}

void SChatItem::UpdateMessageContent(const FString& NewContent)
{
	if (MarkdownTextbox)
	{
		MessageContent = NewContent;
		const FText Rendered = ParseAndRenderMarkdown(NewContent);
		MarkdownTextbox->SetMarkdownText(Rendered.ToString());
	}
}

FText SChatItem::GetRoleText()
{
	switch (Role)
	{
	case EChatRole::Assistant:
		return LOCTEXT("MessageItemRoleAssistant", "Vorel");
	case EChatRole::System:
		return LOCTEXT("MessageItemRoleSystem", "System");
	default:
		return LOCTEXT("MessageItemRoleUser", "You");
	}
}

const FSlateBrush* SChatItem::GetBackgroundBrush() const
{
	switch (Role)
	{
	case EChatRole::Assistant:
		return FVorelAIStyle::Get().GetBrush("VorelAI.Background.Medium.Rounded.Small");
	case EChatRole::System:
		return FVorelAIStyle::Get().GetBrush("VorelAI.Background.Light.Rounded.Small");
	default:
		return FVorelAIStyle::Get().GetBrush("VorelAI.Background.Transparent");
	}
}

void SChatItem::InitializeMarkdownParser()
{
	ReleaseMarkdownParser();
	MarkdownParser = NewObject<UMarkdownParser>(GetTransientPackage());
	if (IsValid(MarkdownParser))
	{
		MarkdownParser->SetFlags(RF_Standalone);
		return;
	}
	UE_LOG(LogVorel, Error, TEXT("SChatItem::InitializeMarkdownParser: Failed to create UMarkdownParser"));
}

void SChatItem::ReleaseMarkdownParser()
{
	if (MarkdownParser)
	{
		MarkdownParser->ClearFlags(RF_Standalone);
		MarkdownParser = nullptr;
	}
}

FText SChatItem::ParseAndRenderMarkdown(const FString& Markdown)
{
	if (!IsValid(MarkdownParser))
	{
		InitializeMarkdownParser();
	}
	if (!IsValid(MarkdownParser))
	{
		return FText::GetEmpty();
	}
	MarkdownParser->SetContent(Markdown);
	MarkdownParser->Parse();
	return FText::FromString(MarkdownParser->RenderToHTML());
}

FString SChatItem::GetMarkdownDemoText()
{
	const FString Path = FPaths::Combine(IPluginManager::Get().FindPlugin(TEXT("VorelAI"))->GetBaseDir(), MarkdownDemoFile);
	FString Text;
	if (FFileHelper::LoadFileToString(Text, *Path))
	{
		return Text;
	}
	UE_LOG(LogVorel, Warning, TEXT("Failed to load Markdown demo file from: %s"), *Path);
	return TEXT("# Failed to load Markdown demo\n\nPlease check the file path and ensure the file exists.");
}

#undef LOCTEXT_NAMESPACE
