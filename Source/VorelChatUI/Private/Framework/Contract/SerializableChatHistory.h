// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Message.h"

// One stored conversation.
class USerializableChatHistory : public UObject
{
public:
	FString Id;

	// True once the conversation holds a message and belongs to an agent mode. Set by the chat panel.
	bool bIsAgentConversation = false;

	// In order of time.
	TArray<TObjectPtr<UMessage>> Messages;

	virtual bool IsValidHistory() const = 0;

	// At most MaxLength characters. What bShorten asks for is the client's business; the user interface always passes true.
	virtual FString GetDisplayableTitle(bool bShorten, int32 MaxLength) = 0;

	void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObjects(Messages); }
};
