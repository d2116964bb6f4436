// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <utility>
#include <vector>

// The web pages that the plug-in's links and its sign-in lead to, as complete HTML documents. All text that they are given is escaped.

// Names and values of what a form sends back unseen.
using FHiddenFields = std::vector<std::pair<std::string, std::string>>;

struct FLoginPage
{
	// The account that is known already, and needs no password; empty: the page asks for a name.
	std::string AccountName{};
	// What was typed the last time, and a sentence on what was wrong with it; both empty at first.
	std::string NameTyped{};
	std::string Problem{};
	bool bAskPassword = false;
	FHiddenFields Hidden{};
	// For a program that waits for the answer, which may be cancelled; else the browser itself is signed in.
	bool bForProgram = true;
};

struct FBillingPage
{
	// May be empty: the one local account has no name before the first login.
	std::string AccountName{};
	int Credits = 0;
	int DailyCredits = 0;
	// Sent with "Top up" and with "Sign out".
	FHiddenFields Hidden{};
	// What has just been done; empty for nothing.
	std::string Notice{};
	bool bSignedIn = false;
	bool bCanSignOut = false;
};

// Address: the service's own, without a slash at its end. bSeveralUsers: accounts with passwords.
std::string MakeStartPage(const std::string& Address, bool bSeveralUsers);
std::string MakeLoginPage(const FLoginPage& Page);
std::string MakeBillingPage(const FBillingPage& Page);
std::string MakeTermsPage();
std::string MakePrivacyPage();
// Version: the newest one of the plug-in.
std::string MakePluginPage(const std::string& Version);
std::string MakeErrorPage(const std::string& Title, const std::string& Sentence);

// Value of the header Content-Security-Policy of all pages. Their Referrer-Policy has to be "same-origin": under "no-referrer" a browser
// sends a form with the origin "null".
//
// Redirect: where else than to this service the page's form may lead, which a browser checks too; empty for nowhere.
std::string MakePageSecurityPolicy(const std::string& Redirect = "");
