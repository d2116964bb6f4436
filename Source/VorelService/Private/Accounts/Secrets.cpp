// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/Secrets.h"

#include <array>
#include <sodium.h>

namespace
{
template <std::size_t Size>
std::string ToBase64Url(const std::array<unsigned char, Size>& Bytes)
{
	constexpr int Variant = sodium_base64_VARIANT_URLSAFE_NO_PADDING;
	std::array<char, sodium_base64_ENCODED_LEN(Size, Variant)> Text{};
	return sodium_bin2base64(Text.data(), Text.size(), Bytes.data(), Bytes.size(), Variant);
}

const unsigned char* ToBytes(const std::string& Text)
{
	return reinterpret_cast<const unsigned char*>(Text.data());
}
} // namespace

bool PrepareSecrets()
{
	return sodium_init() >= 0;
}

std::string MakeSecret()
{
	std::array<unsigned char, 32> Bytes{};
	randombytes_buf(Bytes.data(), Bytes.size());
	return ToBase64Url(Bytes);
}

std::string HashSecret(const std::string& Text)
{
	std::array<unsigned char, crypto_hash_sha256_BYTES> Hash{};
	crypto_hash_sha256(Hash.data(), ToBytes(Text), Text.size());
	return ToBase64Url(Hash);
}

bool AreSecretsEqual(const std::string& A, const std::string& B)
{
	return A.size() == B.size() && sodium_memcmp(A.data(), B.data(), A.size()) == 0;
}

std::string SignText(const std::string& Text, const std::string& Key)
{
	std::array<unsigned char, crypto_auth_hmacsha256_BYTES> Code{};
	crypto_auth_hmacsha256_state State;
	crypto_auth_hmacsha256_init(&State, ToBytes(Key), Key.size());
	crypto_auth_hmacsha256_update(&State, ToBytes(Text), Text.size());
	crypto_auth_hmacsha256_final(&State, Code.data());
	return ToBase64Url(Code);
}
