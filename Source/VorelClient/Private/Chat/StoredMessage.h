// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Assistant/AnswerReader.h"
#include "Message.h"

class UStoredMessage final : public UMessage
{
public:
	static UStoredMessage* Make(EChatRole InRole, const FString& Text);

	const FString& GetText() const { return Contents[0]->Text; }

	// How an answer ended. Failed: it was interrupted, and holds what had arrived by then.
	EAnswerEnd End = EAnswerEnd::Complete;
};
