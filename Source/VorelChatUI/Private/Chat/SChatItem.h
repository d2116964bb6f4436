// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Message.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SMarkdownTextbox;
class UMarkdownParser;

// One message: a role line over the rendered Markdown body. Every change of the text renders the whole message anew.
class VORELCHATUI_API SChatItem : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SChatItem)
		: _Role(EChatRole::User)
	{
	}
	SLATE_ARGUMENT(EChatRole, Role)
	// The Markdown text.
	SLATE_ARGUMENT(FString, Message)
	SLATE_END_ARGS()

	~SChatItem() override;

	void Construct(const FArguments& InArgs);

	// Both do nothing, and lose the text, while the item is not built.
	void AddMessageContent(const FString& Delta);
	void UpdateMessageContent(const FString& NewContent);

	void Initialize() override;
	TSharedRef<SWidget> ConstructInterface() override;

private:
	FText GetRoleText();
	const FSlateBrush* GetBackgroundBrush() const;
	void InitializeMarkdownParser();
	void ReleaseMarkdownParser();
	FText ParseAndRenderMarkdown(const FString& Markdown);
	FString GetMarkdownDemoText();

	FArguments Args;
	EChatRole Role = EChatRole::User;

	// The Markdown source shown now, never the markup.
	FString MessageContent;
	TSharedPtr<SMarkdownTextbox> MarkdownTextbox;

	// Ours alone; the flag RF_Standalone keeps it from the collector.
	TObjectPtr<UMarkdownParser> MarkdownParser;
};
