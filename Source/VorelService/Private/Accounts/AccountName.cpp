// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/AccountName.h"

#include <memory>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>
#include <vector>

namespace
{
constexpr std::size_t MaxBytes = 4 * 64;
constexpr int32_t MaxCharacters = 64;

// Replaces nothing: what is not UTF-8 is refused.
bool FromUtf8(const std::string& Bytes, icu::UnicodeString& OutText)
{
	std::vector<UChar> Units(Bytes.size() + 1);
	int32_t Length = 0;
	UErrorCode Error = U_ZERO_ERROR;
	u_strFromUTF8(Units.data(), static_cast<int32_t>(Units.size()), &Length, Bytes.data(), static_cast<int32_t>(Bytes.size()), &Error);
	OutText.setTo(Units.data(), Length);
	return U_SUCCESS(Error);
}

std::string ToUtf8(const icu::UnicodeString& Text)
{
	std::string Bytes;
	Text.toUTF8String(Bytes);
	return Bytes;
}

icu::UnicodeString Trim(const icu::UnicodeString& Text)
{
	int32_t Start = 0;
	int32_t End = Text.length();
	while (Start < End && u_isUWhiteSpace(Text.char32At(Start)))
	{
		Start = Text.moveIndex32(Start, 1);
	}
	while (Start < End && u_isUWhiteSpace(Text.char32At(End - 1)))
	{
		End = Text.moveIndex32(End, -1);
	}
	// A copy: what only pointed into the text would not survive being assigned to it.
	return icu::UnicodeString(Text, Start, End - Start);
}

// Neither moves what stands around it nor can be mistaken for nothing.
bool IsAllowed(UChar32 Character)
{
	constexpr uint32_t Refused = U_GC_CC_MASK | U_GC_CN_MASK | U_GC_CS_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
	return (U_GET_GC_MASK(Character) & Refused) == 0 && !u_hasBinaryProperty(Character, UCHAR_BIDI_CONTROL);
}

bool AreAllAllowed(const icu::UnicodeString& Text)
{
	for (int32_t Index = 0; Index < Text.length(); Index = Text.moveIndex32(Index, 1))
	{
		if (!IsAllowed(Text.char32At(Index)))
		{
			return false;
		}
	}
	return true;
}

// Without what is invisible, and with one form of each letter.
icu::UnicodeString Fold(const icu::UnicodeString& Text)
{
	UErrorCode Error = U_ZERO_ERROR;
	const icu::Normalizer2* const Normalizer = icu::Normalizer2::getNFKCCasefoldInstance(Error);
	return U_SUCCESS(Error) ? Trim(Normalizer->normalize(Text, Error)) : icu::UnicodeString();
}
} // namespace

bool ReadAccountName(const std::string& Typed, FAccountName& OutName, std::string& OutProblem)
{
	icu::UnicodeString Text;
	if (Typed.size() <= MaxBytes && !FromUtf8(Typed, Text))
	{
		OutProblem = "The name can't be read.";
		return false;
	}
	Text = Trim(Text);
	if (Typed.size() > MaxBytes || Text.countChar32() > MaxCharacters)
	{
		OutProblem = "The name is too long. It may have " + std::to_string(MaxCharacters) + " characters.";
		return false;
	}
	if (!AreAllAllowed(Text))
	{
		OutProblem = "The name holds a character that can't be shown.";
		return false;
	}
	OutName = {ToUtf8(Text), ToUtf8(Fold(Text))};
	if (OutName.Key.empty())
	{
		OutProblem = "Please type a name.";
		return false;
	}
	return true;
}
