// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <md4c.h>
#include <string>
#include <string_view>

// Decides what is shown of the addresses of links and images, which nobody can click. A reference can repeat one long address at the cost
// of a few characters, so all of them together take no more room than the source has, and what is beyond that shows as an ellipsis.
class FLinkAddresses
{
public:
	explicit FLinkAddresses(size_t SourceSize)
		: Budget(SourceSize)
	{
	}

	void BeginLink();
	void AddLinkText(std::string_view Text);

	// What follows the link's text: its address in brackets, or nothing where the text tells it.
	std::string EndLink(const MD_ATTRIBUTE& Href);

	// What stands in place of an image without description.
	std::string GetImageText(const MD_ATTRIBUTE& Source);

private:
	std::string Take(std::string Address);

	size_t Budget;
	std::string LinkText;
	bool bInLink = false;
};
