// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatHistory.h"

#include "Chat/ChatPanelActions.h"
#include "LogVorel.h"
#include "SerializableChatHistory.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "FVorelChatUI"

namespace
{

constexpr int32 MaxTitleLength = 20;

} // namespace

void SChatHistory::Construct(const FArguments& InArgs)
{
	Args = InArgs;
	Initialize();
	RegisterEvents();
	ChatHistories = MakeShared<TArray<FSerializableChatHistoryPtr>>();
	ChildSlot[ConstructInterface()];
}

void SChatHistory::Initialize()
{
	PanelActions = Args._PanelActions;
}

// clang-format off
TSharedRef<SWidget> SChatHistory::ConstructInterface()
{
	return SNew(SBox)
		[
			SAssignNew(ChatHistoryComboBox, SComboBox<FSerializableChatHistoryPtr>)
			.OptionsSource(ChatHistories.Get())
			.OnGenerateWidget(this, &SChatHistory::GenerateChatHistoryItemWidget)
			.OnSelectionChanged(this, &SChatHistory::OnChatHistorySelectionChanged)
			.ComboBoxStyle(&FVorelAIStyle::Get().GetWidgetStyle<FComboBoxStyle>("VorelAI.ComboBox"))
			.ContentPadding(FMargin(8.0f, 1.0f, 4.0f, 1.0f))
			[
				SNew(STextBlock)
				.Text(LOCTEXT("History", "History"))
				.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"))
			]
		];
}
// clang-format on

void SChatHistory::RegisterEvents()
{
	if (PanelActions)
	{
		PanelActions->OnChatHistoriesRefreshed.BindSP(this, &SChatHistory::RefreshChatList);
	}
}

void SChatHistory::UnregisterEvents()
{
	if (PanelActions)
	{
		PanelActions->OnChatHistoriesRefreshed.Unbind();
	}
}

void SChatHistory::RefreshChatList(const TArray<TObjectPtr<USerializableChatHistory>>& Histories)
{
	if (!ChatHistories || !ChatHistoryComboBox)
	{
		return;
	}
	ChatHistories->Empty();
	ChatHistories->Append(Histories);
	RefreshOptions();
}

void SChatHistory::RefreshOptions()
{
	ChatHistoryComboBox->RefreshOptions();
}

// clang-format off
TSharedRef<SWidget> SChatHistory::GenerateChatHistoryItemWidget(TObjectPtr<USerializableChatHistory> Item)
{
	if (!IsValid(Item) || !Item->IsValidHistory())
	{
		UE_LOG(LogVorel, Error, TEXT("Invalid chat history passed to chat history item widget"));
		return SNullWidget::NullWidget;
	}
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		.VAlign(VAlign_Center)
		[
			SNew(STextBlock)
			.Text(FText::FromString(Item->GetDisplayableTitle(true, MaxTitleLength)))
			.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"))
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.Padding(2.0f, 0.0f, 0.0f, 0.0f)
		[
			SNew(SButton)
			.ButtonStyle(&FVorelAIStyle::Get().GetWidgetStyle<FButtonStyle>("VorelAI.Button.Secondary"))
			.ContentPadding(FMargin(0.0f))
			.OnClicked(this, &SChatHistory::OnDeleteChatClicked, Item)
			[
				SNew(SImage)
				.Image(FVorelAIStyle::Get().GetBrush("VorelAI.Icon.Delete"))
				.ColorAndOpacity(FVorelAIStyle::Get().GetSlateColor("VorelAI.Color.Foreground"))
			]
		];
}
// clang-format on

void SChatHistory::OnChatHistorySelectionChanged(TObjectPtr<USerializableChatHistory> Item, ESelectInfo::Type SelectInfo)
{
	if (!IsValid(Item) || !PanelActions)
	{
		return;
	}
	UE_LOG(LogVorel, Log, TEXT("Chat history selection changed to %s"), *Item->Id);
	PanelActions->OnChatHistorySelected.ExecuteIfBound(Item);
}

FReply SChatHistory::OnDeleteChatClicked(TObjectPtr<USerializableChatHistory> Item)
{
	if (!IsValid(Item) || !PanelActions || !ChatHistories || !ChatHistoryComboBox)
	{
		return FReply::Handled();
	}
	UE_LOG(LogVorel, Log, TEXT("Chat history deleted %s"), *Item->Id);
	PanelActions->OnChatDeleted.ExecuteIfBound(Item);
	ChatHistories->Remove(Item);
	RefreshOptions();
	if (!ChatHistories->IsEmpty())
	{
		ChatHistoryComboBox->SetSelectedItem((*ChatHistories)[0], ESelectInfo::Direct);
	}
	return FReply::Handled();
}

#undef LOCTEXT_NAMESPACE
