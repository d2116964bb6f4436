// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ConversationRecord.h"
#include <string>
#include <string_view>

struct FWholeConversation
{
	FConversationRecord Conversation;
	TArray<FMessageRecord> Messages;
};

// A conversation as people and other programs take it along. All bytes are UTF-8.
namespace ConversationFile
{
// With the notes of answers that are not whole.
std::string ToMarkdown(const FWholeConversation& Whole);
// Without them.
std::string ToJson(const FWholeConversation& Whole);

// Unset, with a clause that begins with the line or field in question, for what ToJson would not write. Fields it does not know count for
// nothing.
TOptional<FWholeConversation> FromJson(std::string_view Bytes, FString& OutError);

// One line, without its end: id, time of last use, mode and whole title, separated by tabs.
std::string ToListLine(const FConversationRecord& Conversation);
} // namespace ConversationFile
