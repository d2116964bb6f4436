// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/ConversationSchema.h"

#include "Store/StoreSchema.h"

// Rows are numbered in order of time. A number is never used again, since another program may still be writing to a row that is gone.
const char* const FirstVersion = R"(
CREATE TABLE conversations(
	id TEXT NOT NULL COLLATE NOCASE PRIMARY KEY,
	title TEXT NOT NULL,
	mode TEXT NOT NULL,
	created INTEGER NOT NULL,
	last_used INTEGER NOT NULL
) STRICT, WITHOUT ROWID;
CREATE TABLE messages(
	id INTEGER PRIMARY KEY AUTOINCREMENT,
	conversation TEXT NOT NULL COLLATE NOCASE REFERENCES conversations(id) ON DELETE CASCADE,
	role INTEGER NOT NULL,
	text TEXT NOT NULL,
	ending INTEGER
) STRICT;
CREATE INDEX messages_by_conversation ON messages(conversation, id);
CREATE INDEX growing_messages ON messages(id) WHERE ending IS NULL;
)";

const FStoreSchema& GetConversationSchema()
{
	static const FStoreSchema Schema{0x566F7265, {FirstVersion}};
	return Schema;
}
