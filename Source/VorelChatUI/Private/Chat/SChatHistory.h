// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Types/SlateEnums.h"
#include "UObject/ObjectPtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class USerializableChatHistory;
struct FChatPanelActions;
template <typename OptionType>
class SComboBox;

using FSerializableChatHistoryPtr = TObjectPtr<USerializableChatHistory>;

// The drop-down of earlier conversations. What is chosen and deleted goes out through PanelActions, and a new list comes in through it.
class VORELCHATUI_API SChatHistory : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SChatHistory) {}
	SLATE_ARGUMENT(TSharedPtr<FChatPanelActions>, PanelActions)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void Initialize() override;
	TSharedRef<SWidget> ConstructInterface() override;
	void RegisterEvents() override;
	void UnregisterEvents() override;

private:
	void RefreshChatList(const TArray<TObjectPtr<USerializableChatHistory>>& Histories);
	void RefreshOptions();
	TSharedRef<SWidget> GenerateChatHistoryItemWidget(TObjectPtr<USerializableChatHistory> Item);

	// A selection by code goes out exactly as a click does.
	void OnChatHistorySelectionChanged(TObjectPtr<USerializableChatHistory> Item, ESelectInfo::Type SelectInfo);
	FReply OnDeleteChatClicked(TObjectPtr<USerializableChatHistory> Item);

	FArguments Args;
	TSharedPtr<FChatPanelActions> PanelActions;
	TSharedPtr<SComboBox<FSerializableChatHistoryPtr>> ChatHistoryComboBox;

	// Read by the combo box.
	TSharedPtr<TArray<FSerializableChatHistoryPtr>> ChatHistories;
};
