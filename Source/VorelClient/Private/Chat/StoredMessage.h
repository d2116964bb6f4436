// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ConversationRecord.h"

class UStoredMessage final : public UMessage
{
public:
	// The shown text is the record's with the note that belongs to its end. An answer that grows in another program counts as complete.
	static UStoredMessage* Make(const FMessageRecord& Record);

	// Without the note.
	FMessageRecord GetRecord() const;

private:
	EAnswerEnd End = EAnswerEnd::Complete;
	int32 NoteLength = 0;
};
