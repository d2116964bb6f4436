// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/StoredMessage.h"

#include "Chat/AnswerNote.h"

UStoredMessage* UStoredMessage::Make(const FMessageRecord& Record)
{
	UStoredMessage* const Message = NewObject<UStoredMessage>();
	UMessageContent* const Content = NewObject<UMessageContent>(Message);
	Message->Role = Record.Role;
	Message->End = Record.End.Get(EAnswerEnd::Complete);
	Content->Text = Record.Text + GetAnswerNote(Message->End);
	Message->Contents.Add(Content);
	return Message;
}

FMessageRecord UStoredMessage::GetRecord() const
{
	FMessageRecord Record{Role, Contents[0]->Text, End};
	Record.Text.RemoveFromEnd(GetAnswerNote(End), ESearchCase::CaseSensitive);
	return Record;
}
