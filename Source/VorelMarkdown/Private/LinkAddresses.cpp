// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "LinkAddresses.h"

#include "MarkdownEntities.h"
#include <algorithm>

namespace
{
std::string Decode(const MD_ATTRIBUTE& Attribute)
{
	std::string Result;
	for (size_t Index = 0; Attribute.substr_offsets[Index] < Attribute.size; ++Index)
	{
		const MD_OFFSET Start = Attribute.substr_offsets[Index];
		const std::string_view Piece(Attribute.text + Start, Attribute.substr_offsets[Index + 1] - Start);
		Result += Attribute.substr_types[Index] == MD_TEXT_ENTITY ? DecodeEntity(Piece) : std::string(Piece);
	}
	// The reader lets a line's end into an address in angle brackets.
	std::ranges::replace(Result, '\n', ' ');
	return Result;
}
} // namespace

void FLinkAddresses::BeginLink()
{
	bInLink = true;
	LinkText.clear();
}

void FLinkAddresses::AddLinkText(std::string_view Text)
{
	if (bInLink)
	{
		LinkText += Text;
	}
}

std::string FLinkAddresses::EndLink(const MD_ATTRIBUTE& Href)
{
	bInLink = false;
	const std::string Address = Decode(Href);
	// A bare "www.example.com" or "me@example.com" has an address that begins with more.
	const bool bTold = Address == LinkText || Address == "mailto:" + LinkText || Address == "http://" + LinkText;
	return Address.empty() || bTold ? std::string() : " (" + Take(Address) + ")";
}

std::string FLinkAddresses::Take(std::string Address)
{
	if (Address.size() > Budget)
	{
		return "\u2026";
	}
	Budget -= Address.size();
	return Address;
}

std::string FLinkAddresses::GetImageText(const MD_ATTRIBUTE& Source)
{
	return Take(Decode(Source));
}
