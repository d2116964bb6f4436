// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Pages.h"

namespace
{
std::string MakePage(const std::string& Title, const std::string& Body)
{
	return "<!DOCTYPE html><html lang=\"en\"><head><meta charset=\"utf-8\"><title>" + Title +
		   "</title><style>body{font:16px/1.5 sans-serif;max-width:40em;margin:3em auto;padding:0 1em}</style></head><body><h1>" + Title +
		   "</h1>" + Body + "</body></html>";
}
} // namespace

std::string MakeStartPage()
{
	return MakePage("Vorel AI, local service",
		"<p>This service runs inside the program on your own machine and answers from a built-in guide to the engine's C++.</p>"
		"<p>Its chat completions are served below <code>/v1</code>. See also <a href=\"/billing\">billing</a>.</p>");
}

std::string MakeBillingPage()
{
	return MakePage("Billing", "<p>The built-in guide costs nothing. There is nothing to pay here.</p><p><a href=\"/\">Back</a></p>");
}
