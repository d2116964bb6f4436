// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class USerializableChatHistory;

DECLARE_DELEGATE(FOnNewChatRequested);
DECLARE_DELEGATE_OneParam(FOnChatHistorySelected, TObjectPtr<USerializableChatHistory> /* History */);
DECLARE_DELEGATE_OneParam(FOnChatDeleted, TObjectPtr<USerializableChatHistory> /* History */);
DECLARE_DELEGATE_OneParam(FOnChatHistoriesRefreshed, const TArray<TObjectPtr<USerializableChatHistory>>& /* Histories */);
DECLARE_DELEGATE(FOnLogoutClicked);
DECLARE_DELEGATE_OneParam(FOnChatModeSelected, const FString& /* ModeName */);
DECLARE_DELEGATE_OneParam(FOnSendMessage, const FString& /* Text */);

// What the panel's children ask of the panel, which decides, and the one announcement that goes the other way. The panel owns the record
// and shares it with its children.
struct FChatPanelActions
{
	FOnNewChatRequested OnNewChatRequested;
	FOnChatHistorySelected OnChatHistorySelected;
	FOnChatDeleted OnChatDeleted;

	// Fired by the panel.
	FOnChatHistoriesRefreshed OnChatHistoriesRefreshed;
	FOnLogoutClicked OnLogoutClicked;
	FOnChatModeSelected OnChatModeSelected;
	FOnSendMessage OnSendMessage;
};
