// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QUuid>

#include "Chat/ConversationRepository.h"

#include "Assistant/QtText.h"
#include "Chat/ConversationTitle.h"
#include "Chat/StoredMessage.h"

UStoredConversation* FConversationRepository::Create(const FString& ModeName)
{
	UStoredConversation* const Conversation = NewObject<UStoredConversation>();
	Conversation->Id = ToFString(QUuid::createUuid().toString(QUuid::WithoutBraces));
	Conversation->ModeName = ModeName;
	return Conversation;
}

UStoredConversation* FConversationRepository::Find(const FString& Id) const
{
	const TObjectPtr<UStoredConversation>* const Found =
		Conversations.FindByPredicate([&Id](const TObjectPtr<UStoredConversation>& Conversation) { return Conversation->Id == Id; });
	return Found ? Found->Get() : nullptr;
}

bool FConversationRepository::Use(UStoredConversation& Conversation, const FString& UserText)
{
	const int32 Place = Conversations.Find(&Conversation);
	if (Place == INDEX_NONE)
	{
		Conversation.Title = MakeConversationTitle(UserText);
	}
	else
	{
		Conversations.RemoveAt(Place);
	}
	Conversation.LastUsed = GetCurrentTime();
	Conversations.Insert(&Conversation, 0);
	return Place != 0;
}

void FConversationRepository::Append(UStoredConversation& Conversation, UStoredMessage* Message)
{
	Conversation.Messages.Add(Message);
}

void FConversationRepository::Remove(const FString& Id)
{
	Conversations.RemoveAll([&Id](const TObjectPtr<UStoredConversation>& Conversation) { return Conversation->Id == Id; });
}
