// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/StoredConversation.h"

#include "Chat/ChatModes.h"
#include "Chat/ConversationTitle.h"
#include "Chat/StoredMessage.h"
#include "ChatService.h"

UStoredConversation* UStoredConversation::Make(const FConversationRecord& Record)
{
	UStoredConversation* const Conversation = NewObject<UStoredConversation>();
	Conversation->Id = Record.Id;
	Conversation->SetRecord(Record);
	return Conversation;
}

bool UStoredConversation::SetRecord(const FConversationRecord& Record)
{
	// The store may know modes that this program has not.
	const FString KnownMode = FindChatMode(Record.ModeName) ? Record.ModeName : UChatService::DefaultAgentChatModeName;
	const bool bSame = Title.Equals(Record.Title) && ModeName == KnownMode && LastUsed == Record.LastUsed;
	Title = Record.Title;
	ModeName = KnownMode;
	Created = Record.Created;
	LastUsed = Record.LastUsed;
	return !bSame;
}

TArray<FMessageRecord> UStoredConversation::GetMessageRecords() const
{
	TArray<FMessageRecord> Records;
	for (const TObjectPtr<UMessage>& Message : Messages)
	{
		Records.Add(static_cast<const UStoredMessage&>(*Message).GetRecord());
	}
	return Records;
}

void UStoredConversation::SetMessageRecords(const TArray<FMessageRecord>& Records)
{
	Messages.Reset();
	Messages.Reserve(Records.Num());
	for (const FMessageRecord& Record : Records)
	{
		Messages.Add(UStoredMessage::Make(Record));
	}
}

FString UStoredConversation::GetDisplayableTitle(bool bShorten, int32 MaxLength)
{
	const FString Shown = ShortenTitle(GetShownTitle(Title), MaxLength);
	return bShorten ? FormatTimeOfUse(LastUsed, GetCurrentTime()) + TEXT(" ") + Shown : Shown;
}
