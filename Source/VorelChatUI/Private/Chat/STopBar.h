// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

struct FChatPanelActions;

// The strip above the conversation: the logo, the new-chat button and the conversation picker.
class VORELCHATUI_API STopBar : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(STopBar) {}
	SLATE_ARGUMENT(TSharedPtr<FChatPanelActions>, PanelActions)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	TSharedRef<SWidget> ConstructInterface() override;

private:
	TSharedRef<SWidget> ConstructLogo();
	TSharedRef<SWidget> ConstructNewChatButton();
	TSharedRef<SWidget> ConstructChatHistory();

	FReply OnNewChatButtonClicked();

	TSharedPtr<FChatPanelActions> PanelActions;
};
