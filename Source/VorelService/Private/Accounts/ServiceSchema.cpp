// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/ServiceSchema.h"

#include "Store/StoreSchema.h"

namespace
{
// Times are seconds since 1970. Of codes, tokens and cookies only hashes are stored, under "hash" and "code".
//
// The account without a password is the local one; its name is empty until it is asked. A login is what one sign-in gave, with all tokens
// that came of it: access tokens (kind 0) and refresh tokens (kind 1). A token's generation is the number of refreshes that led to it. A
// refresh token is used when it or another of its generation or a later one first is.
const char* const FirstVersion = R"(
CREATE TABLE accounts(
	id INTEGER PRIMARY KEY AUTOINCREMENT,
	name TEXT NOT NULL,
	key TEXT NOT NULL UNIQUE,
	password TEXT,
	credits_used INTEGER NOT NULL DEFAULT 0,
	credits_day INTEGER NOT NULL DEFAULT 0
) STRICT;
CREATE UNIQUE INDEX local_account ON accounts((password IS NULL)) WHERE password IS NULL;
CREATE TABLE codes(
	hash TEXT NOT NULL PRIMARY KEY,
	account INTEGER NOT NULL REFERENCES accounts(id) ON DELETE CASCADE,
	redirect TEXT NOT NULL,
	challenge TEXT NOT NULL,
	expires INTEGER NOT NULL
) STRICT, WITHOUT ROWID;
CREATE INDEX codes_by_account ON codes(account, expires);
CREATE TABLE logins(
	id INTEGER PRIMARY KEY AUTOINCREMENT,
	account INTEGER NOT NULL REFERENCES accounts(id) ON DELETE CASCADE,
	code TEXT NOT NULL UNIQUE,
	expires INTEGER NOT NULL
) STRICT;
CREATE INDEX logins_by_account ON logins(account, expires);
CREATE TABLE tokens(
	id INTEGER PRIMARY KEY AUTOINCREMENT,
	hash TEXT NOT NULL UNIQUE,
	login INTEGER NOT NULL REFERENCES logins(id) ON DELETE CASCADE,
	kind INTEGER NOT NULL,
	generation INTEGER NOT NULL,
	expires INTEGER NOT NULL,
	used INTEGER
) STRICT;
CREATE INDEX tokens_by_login ON tokens(login, id);
CREATE INDEX tokens_by_expiry ON tokens(expires);
CREATE TABLE sessions(
	hash TEXT NOT NULL PRIMARY KEY,
	account INTEGER NOT NULL REFERENCES accounts(id) ON DELETE CASCADE,
	expires INTEGER NOT NULL
) STRICT, WITHOUT ROWID;
CREATE INDEX sessions_by_account ON sessions(account, expires);
)";
} // namespace

const FStoreSchema& GetServiceSchema()
{
	static const FStoreSchema Schema{0x566F7253, {FirstVersion}};
	return Schema;
}
