// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Pages/PageLayout.h"

#include <algorithm>

namespace
{
std::string MakeBar(const FBillingPage& Page)
{
	const int Percent = Page.DailyCredits > 0 ? std::clamp(static_cast<int>(100LL * Page.Credits / Page.DailyCredits), 0, 100) : 0;
	return "<svg class=\"bar\" aria-hidden=\"true\" focusable=\"false\"><rect class=\"whole\" width=\"100%\" height=\"100%\"/>"
		   "<rect class=\"left\" width=\"" +
		   std::to_string(Percent) + "%\" height=\"100%\"/></svg>\n";
}

std::string MakeForm(const char* Action, const char* ButtonClass, const char* Label, const FBillingPage& Page)
{
	return std::string("<form method=\"post\" action=\"") + Action + "\">\n" + MakeHiddenInputs(Page.Hidden) +
		   "<div class=\"buttons\"><button class=\"" + ButtonClass + "\">" + Label + "</button></div>\n</form>\n";
}

std::string MakeCredits(const FBillingPage& Page)
{
	const std::string Owner =
		Page.AccountName.empty() ? "" : "<p>The account of <strong><bdi>" + EscapeHtml(Page.AccountName) + "</bdi></strong>.</p>\n";
	const std::string Notice = Page.Notice.empty() ? "" : "<p class=\"notice\" role=\"status\">" + EscapeHtml(Page.Notice) + "</p>\n";
	return Owner + Notice + "<p class=\"amount\"><strong>" + std::to_string(Page.Credits) + "</strong> of " +
		   std::to_string(Page.DailyCredits) + " credits left today</p>\n" + MakeBar(Page) +
		   "<p>An answer in agent mode takes one credit. Each day begins with " + std::to_string(Page.DailyCredits) +
		   " of them, at midnight UTC, and you may top them up at any time. That costs nothing: there is nothing to pay here.</p>\n" +
		   MakeForm("/billing", "first", "Top up", Page) + (Page.bCanSignOut ? MakeForm("/logout", "", "Sign out", Page) : "");
}
} // namespace

std::string MakeBillingPage(const FBillingPage& Page)
{
	return MakePage(
		"Credits", "Credits", Page.bSignedIn ? MakeCredits(Page) : "<p>To see your credits, <a href=\"/login\">sign in</a> first.</p>");
}
