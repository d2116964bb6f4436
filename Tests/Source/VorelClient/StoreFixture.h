// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ClientFixture.h"

#include "ConversationStore.h"
#include "Support/TempFolder.h"
#include <list>

// The chat service with its conversations in a file.
class FStoreTest : public FChatClientTest
{
protected:
	FStoreTest() { StoreFile = Folder.GetPath(FConversationStore::FileName); }

	// Another program, as it were, on the same file. Ends with the test.
	UHttpChatService& StartOther();
	~FStoreTest() override { EndService(); }

	// Titles of the list, parted by bars.
	static FString GetTitles(const UChatService& Chat);
	// What is shown of the open conversation, parted by bars.
	static FString GetTexts(const UChatService& Chat);

	FString FirstId() { return Service().GetChatHistories()[0]->Id; }

	// What the file holds of a conversation, read by somebody else: "user(text) complete(text) growing(text) ...".
	FString ReadFile(const FString& Id) const;

	FTempFolder Folder;

private:
	std::list<TStarted<UHttpChatService>> Others;
};
