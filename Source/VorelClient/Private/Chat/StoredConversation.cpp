// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/StoredConversation.h"

#include "Chat/ConversationTitle.h"
#include "Chat/StoredMessage.h"

#define LOCTEXT_NAMESPACE "VorelClient"

UStoredMessage* UStoredMessage::Make(EChatRole InRole, const FString& Text)
{
	UStoredMessage* const Message = NewObject<UStoredMessage>();
	UMessageContent* const Content = NewObject<UMessageContent>(Message);
	Content->Text = Text;
	Message->Role = InRole;
	Message->Contents.Add(Content);
	return Message;
}

FString UStoredConversation::GetDisplayableTitle(bool bWithTime, int32 MaxLength)
{
	const FString Shown = ShortenTitle(Title.IsEmpty() ? LOCTEXT("Untitled", "Untitled").ToString() : Title, MaxLength);
	return bWithTime ? FormatTimeOfUse(LastUsed, GetCurrentTime()) + TEXT(" ") + Shown : Shown;
}

#undef LOCTEXT_NAMESPACE
