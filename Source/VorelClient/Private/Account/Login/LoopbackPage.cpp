// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Login/LoopbackPage.h"

#define LOCTEXT_NAMESPACE "VorelClient"

namespace
{
// The colors of the service's pages.
constexpr const char* Style =
	":root{color-scheme:light dark;--ground:#f4f6fb;--card:#fff;--line:#dfe3ec;--text:#16181c}"
	"@media(prefers-color-scheme:dark){:root{--ground:#16181c;--card:#1d2025;--line:#2d3139;--text:#e9ebf0}}"
	"body{margin:0;min-height:100vh;display:grid;place-items:center;background:var(--ground);color:var(--text);"
	"font:1rem/1.5 system-ui,sans-serif}"
	"main{box-sizing:border-box;max-width:28rem;margin:1rem;padding:1.75rem;border:1px solid var(--line);border-radius:.75rem;"
	"background:var(--card)}"
	"h1{margin:0 0 .75rem;font-size:1.5rem;line-height:1.2}p{margin:0}";

QByteArray ToHtml(const FText& Text)
{
	return QByteArray::fromStdString(ToUtf8(Text.ToString())).replace('&', "&amp;").replace('<', "&lt;");
}

QByteArray MakeReply(const char* Status, const FText& Title, const FText& Sentence)
{
	const QByteArray Body = "<!DOCTYPE html><html lang=\"en\"><head><meta charset=\"utf-8\">"
							"<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"><title>" +
							ToHtml(Title) + " - Vorel AI</title><style>" + Style + "</style></head><body><main><h1>" + ToHtml(Title) +
							"</h1><p>" + ToHtml(Sentence) + "</p></main></body></html>\n";
	return "HTTP/1.1 " + QByteArray(Status) +
		   "\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: " + QByteArray::number(Body.size()) +
		   "\r\nConnection: close\r\nCache-Control: no-store\r\nReferrer-Policy: no-referrer\r\nX-Content-Type-Options: nosniff\r\n"
		   "Content-Security-Policy: default-src 'none'; style-src 'unsafe-inline'; frame-ancestors 'none'\r\n\r\n" +
		   Body;
}
} // namespace

QByteArray LoopbackPage::Make(ERedirect Redirect)
{
	switch (Redirect)
	{
	case ERedirect::Code:
		return MakeReply("200 OK", LOCTEXT("PageDone", "Back to Vorel AI"),
			LOCTEXT("PageDoneText", "Vorel AI has received your sign-in and completes it. You can close this window."));
	case ERedirect::Refusal:
		return MakeReply("200 OK", LOCTEXT("PageRefused", "Not signed in"),
			LOCTEXT(
				"PageRefusedText", "You were not signed in. You can close this window. Vorel AI says why, and you can try again there."));
	case ERedirect::OtherLogin:
		return MakeReply("400 Bad Request", LOCTEXT("PageOutOfDate", "This sign-in is out of date"),
			LOCTEXT("PageOutOfDateText",
				"This page does not belong to the sign-in that Vorel AI waits for. Close this window, and click \"Log in\" in Vorel AI "
				"to begin anew."));
	case ERedirect::OtherServer:
		return MakeReply("400 Bad Request", LOCTEXT("PageOtherServer", "Another service answered"),
			LOCTEXT("PageOtherServerText",
				"The reply does not come from the service that Vorel AI asked, so it was not accepted. Close this window, and click "
				"\"Log in\" in Vorel AI to begin anew."));
	case ERedirect::Incomplete:
		break;
	}
	return MakeReply("400 Bad Request", LOCTEXT("PageIncomplete", "Something is missing"),
		LOCTEXT("PageIncompleteText",
			"The service sent you back without a sign-in. Close this window, and click \"Log in\" in Vorel AI to begin anew."));
}

QByteArray LoopbackPage::MakeNotFound()
{
	return MakeReply("404 Not Found", LOCTEXT("PageNotFound", "Not found"), LOCTEXT("PageNotFoundText", "There is nothing here."));
}

QByteArray LoopbackPage::MakeBadRequest()
{
	return MakeReply("400 Bad Request", LOCTEXT("PageBad", "Not understood"), LOCTEXT("PageBadText", "There is nothing here."));
}

#undef LOCTEXT_NAMESPACE
