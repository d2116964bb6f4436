// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Secrets.h"

#include <array>
#include <sodium.h>

using FKey = std::array<unsigned char, crypto_hash_sha256_BYTES>;

static std::string Encode(const FKey& Key)
{
	constexpr int Variant = sodium_base64_VARIANT_URLSAFE_NO_PADDING;
	std::array<char, sodium_base64_ENCODED_LEN(std::tuple_size_v<FKey>, Variant)> Text;
	return sodium_bin2base64(Text.data(), Text.size(), Key.data(), Key.size(), Variant);
}

std::string Secrets::MakeRandom()
{
	static const bool bReady = sodium_init() >= 0;
	check(bReady);
	FKey Key;
	randombytes_buf(Key.data(), Key.size());
	return Encode(Key);
}

std::string Secrets::Hash(std::string_view Text)
{
	FKey Key;
	crypto_hash_sha256(Key.data(), reinterpret_cast<const unsigned char*>(Text.data()), Text.size());
	return Encode(Key);
}

bool Secrets::AreEqual(std::string_view A, std::string_view B)
{
	return A.size() == B.size() && sodium_memcmp(A.data(), B.data(), A.size()) == 0;
}
