// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownEntities.h"

#include "MarkdownSource.h"
#include <algorithm>
#include <charconv>
#include <iterator>

namespace
{
struct FNamedEntity
{
	std::string_view Name;
	std::string_view Text;
};

// Sorted by name.
constexpr FNamedEntity NamedEntities[] = {
#include "MarkdownEntityTable.inl"
};

std::string DecodeNumber(std::string_view Digits, int Base)
{
	// A number too large for 32 bits leaves the replacement character, as one beyond Unicode does.
	uint32 CodePoint = 0;
	std::from_chars(Digits.data(), Digits.data() + Digits.size(), CodePoint, Base);
	const bool bValid = CodePoint != 0 && CodePoint <= 0x10FFFF;
	const char32_t Sanitized = FMarkdownSource::Sanitize(bValid ? CodePoint : FMarkdownSource::ReplacementCharacter);
	std::string Text;
	FMarkdownSource::AppendUtf8(Text, Sanitized == '\n' ? ' ' : Sanitized);
	return Text;
}
} // namespace

std::string DecodeEntity(std::string_view Entity)
{
	const std::string_view Name = Entity.substr(1, Entity.size() - 2);
	if (Name.starts_with('#'))
	{
		const bool bHex = Name.size() > 1 && (Name[1] | 0x20) == 'x';
		return bHex ? DecodeNumber(Name.substr(2), 16) : DecodeNumber(Name.substr(1), 10);
	}
	const auto Found = std::ranges::lower_bound(NamedEntities, Name, {}, &FNamedEntity::Name);
	const bool bKnown = Found != std::end(NamedEntities) && Found->Name == Name;
	return std::string(bKnown ? Found->Text : Entity);
}
