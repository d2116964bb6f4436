// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ClientFixture.h"

#include "Account/AccessTokenSource.h"
#include "Account/OAuthAuthenticationService.h"
#include "Support/TempFolder.h"

// The real login against a scripted authorization server, with the test in the browser's place. Tokens go to a file.
class FLoginTest : public testing::Test
{
protected:
	FLoginTest();
	~FLoginTest() override;

	UOAuthAuthenticationService& Service();
	// The next use begins anew.
	void EndService() { Started.End(); }

	// Clicks "Log in" and waits for the page to be opened.
	void OpenPage();
	// Until the delegate fired; returns what the user was told since the last time, and expects that it fired once.
	FString WaitForEnd();
	// All of it: page, name, tokens, and the note of where they lie.
	void LogIn(const QByteArray& Tokens);
	void LogInUnstored(const QByteArray& Tokens);
	void LogOut();
	bool IsSignedInAtNextStart();
	// Whether the marker says so.
	bool IsNoted(const char* Words) const { return Folder.Read(TEXT("login.json")).find(Words) != std::string::npos; }
	// Waits for a token; "none" where there is none. Without a reply here the server is not asked, or has one already.
	FString GetToken(const FString& RefusedToken = FString(), const FScriptedServer::FHandler& Reply = {});

	// What the browser's address holds.
	std::string GetParameter(const char* Name) const;
	// The good way back, but for what is given in its place.
	QByteArray MakeRedirect(const QByteArray& Code = "code-1", const QByteArray& State = {}) const;
	// Sends bytes to where the login waits, with its host for HOST, and reads the reply to its end. Empty where nobody listens.
	QByteArray SendToLogin(const QByteArray& Bytes) const { return SendTo(GetParameter("redirect_uri"), Bytes); }
	static QByteArray SendTo(const std::string& Url, const QByteArray& Bytes);
	QByteArray Browse(const QByteArray& Target) const;

	void ExpectNoSecretInLog() const;

	FTempFolder Folder;
	FScriptedServer Server;
	// Takes effect where it is called before the first use of the service.
	FLoginOptions Options;
	FLogCapture Log;
	TArray<FString> OpenedPages;
	bool bBrowser = true;
	int32 Events = 0;
	double Now = 1000.0;
	double TimeOfDay = 1.8e9;
	// Whatever stands here must not be logged.
	QList<QByteArray> SecretsGiven;

private:
	TStarted<UOAuthAuthenticationService> Started;
};

// "http://host:port" of its issuer; with members in place of the usual ones, and without those that are null.
FScriptedServer::FHandler ReplyMetadata(const FScriptedServer& Server, const QByteArray& Changes = "{}");
QByteArray MakeTokens(const QByteArray& Name, const QByteArray& Seconds = "3600");
