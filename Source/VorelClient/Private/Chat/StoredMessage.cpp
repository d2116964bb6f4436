// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/StoredMessage.h"

#include "Chat/AnswerNote.h"

UStoredMessage* UStoredMessage::Make(const FMessageRecord& Record)
{
	UStoredMessage* const Message = NewObject<UStoredMessage>();
	UMessageContent* const Content = NewObject<UMessageContent>(Message);
	Message->Role = Record.Role;
	Message->End = Record.End.Get(EAnswerEnd::Complete);
	const FString Note = MakeAnswerNote(Record.Text, Message->End);
	Message->NoteLength = Note.Len();
	Content->Text = Record.Text + Note;
	Message->Contents.Add(Content);
	return Message;
}

FMessageRecord UStoredMessage::GetRecord() const
{
	return {Role, Contents[0]->Text.LeftChop(NoteLength), End};
}
