// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/Passwords.h"

#include "Accounts/Secrets.h"

#include <array>
#include <sodium.h>

namespace
{
constexpr std::size_t MinLength = 8;
constexpr std::size_t MaxBytes = 1024;

std::size_t CountCharacters(const std::string& Utf8)
{
	std::size_t Count = 0;
	for (const char Byte : Utf8)
	{
		Count += (static_cast<unsigned char>(Byte) & 0xC0) != 0x80;
	}
	return Count;
}
} // namespace

bool IsGoodPassword(const std::string& Password, std::string& OutProblem)
{
	if (CountCharacters(Password) < MinLength)
	{
		OutProblem = "The password is too short. It needs at least " + std::to_string(MinLength) + " characters.";
		return false;
	}
	if (Password.size() > MaxBytes)
	{
		OutProblem = "The password is too long.";
		return false;
	}
	return true;
}

std::string HashPassword(const std::string& Password)
{
	// Well below a second on any machine that runs the program.
	std::array<char, crypto_pwhash_STRBYTES> Hash{};
	const int Failed = crypto_pwhash_str(
		Hash.data(), Password.data(), Password.size(), crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE);
	return Failed ? std::string() : std::string(Hash.data());
}

FPasswordCheck::FPasswordCheck()
	: HashOfNobody(HashPassword(MakeSecret()))
{
}

bool FPasswordCheck::IsRight(const std::string& Password, const std::string& Hash)
{
	if (Password.size() > MaxBytes)
	{
		return false;
	}
	const std::lock_guard<std::mutex> Lock(Mutex);
	const std::string& Compared = Hash.empty() ? HashOfNobody : Hash;
	return crypto_pwhash_str_verify(Compared.c_str(), Password.data(), Password.size()) == 0 && !Hash.empty();
}
