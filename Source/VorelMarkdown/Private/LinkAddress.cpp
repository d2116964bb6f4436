// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "LinkAddress.h"

#include "MarkdownEntities.h"

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
	const std::string Address = Take(Href);
	const bool bTold = Address == LinkText || Address == "mailto:" + LinkText;
	return Address.empty() || bTold ? std::string() : " (" + Address + ")";
}

std::string FLinkAddresses::Take(const MD_ATTRIBUTE& Address)
{
	if (Address.size > Budget)
	{
		return "\u2026";
	}
	Budget -= Address.size;
	return Decode(Address);
}
