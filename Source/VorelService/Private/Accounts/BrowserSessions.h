// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/AccountStore.h"

namespace httplib
{
struct Request;
struct Response;
} // namespace httplib

// Who is signed in in a browser, by a cookie. Calls throw an FStoreError where the file can't be used.
class FBrowserSessions
{
public:
	// bSecure: the cookie goes over TLS alone.
	FBrowserSessions(FServiceDatabase& InDatabase, bool bInSecure);

	// Always a new one, in place of the one that the browser had. False where the account has another password than it was signed in to
	// with, or is gone.
	bool Begin(const FAccount& Account, std::int64_t Now, const httplib::Request& Request, httplib::Response& Response);
	std::optional<FAccount> Find(const httplib::Request& Request, std::int64_t Now);
	void End(const httplib::Request& Request, httplib::Response& Response);

private:
	std::string ReadCookie(const httplib::Request& Request) const;
	void SetCookie(const std::string& Value, std::int64_t MaxAge, httplib::Response& Response) const;

	FServiceDatabase& Database;
	const bool bSecure;
	const std::string CookieName;
};
