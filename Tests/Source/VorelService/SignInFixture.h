// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ServiceFixture.h"

#include "AccountDirectory.h"
#include "Support/TempFolder.h"

using FFields = httplib::Params;

// A program that signs in, and a browser without a window.
class FSignInTest : public FServiceTest
{
protected:
	static const char* const State;

	void SetUp() override { StartOnFile({}); }

	// On the folder's file, with no key of an owner sent along.
	void StartOnFile(FLocalServiceOptions Options);

	// With the accounts "Ada" and "Grace", which have passwords.
	void StartWithPasswords();

	std::string GetDataFile() const { return TCHAR_TO_UTF8(Folder.GetPath(TEXT("service.sqlite"))); }

	// What the program asks for, with some fields in place of the usual ones.
	static FFields MakeRequest(const FFields& Changes = {});
	httplib::Result OpenLogin(const FFields& Request) { return Http->Get(httplib::append_query_params("/login", Request)); }
	httplib::Result PostForm(const char* Path, const FFields& Fields, const httplib::Headers& Headers = {})
	{
		return Http->Post(Path, Headers, Fields);
	}

	// The hidden fields of the page's form.
	static FFields ReadForm(const std::string& Html);

	// The page opened, its form filled in and sent.
	httplib::Result SignIn(const std::string& Name, const std::string& Password = "", const FFields& Request = MakeRequest());
	std::string GetCode(const std::string& Name, const std::string& Password = "");

	static FFields MakeCodeForm(const std::string& Code, const FFields& Changes = {});
	static FFields MakeRefreshForm(const std::string& Token);
	httplib::Result UseCode(const std::string& Code, const FFields& Changes = {})
	{
		return PostForm("/oauth/token", MakeCodeForm(Code, Changes));
	}
	httplib::Result Refresh(const std::string& Token) { return PostForm("/oauth/token", MakeRefreshForm(Token)); }

	// Access and refresh token.
	std::pair<std::string, std::string> GetTokens(const httplib::Result& Reply);

	int GetUserStatus(const std::string& AccessToken) { return Get("/v1/user", AccessToken)->status; }
	httplib::Result Get(const char* Path, const std::string& Access) { return Http->Get(Path, {{"Authorization", "Bearer " + Access}}); }
	httplib::Result AskIn(const char* Mode, const std::string& AccessToken);

	FTempFolder Folder;
};

// Of an address with a query; empty where it is missing.
std::string GetQueryField(const std::string& Url, const std::string& Name);

// The error of a JSON reply, or the problem that a page shows.
std::string GetError(const httplib::Result& Reply);
