// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

// To be called before anything else here; false where the system has no source of random numbers.
bool PrepareSecrets();

// 256 random bits in the alphabet of base64url.
std::string MakeSecret();

// The SHA-256 of a text in base64url. What is stored of a secret, and the transformation "S256" of a code verifier.
std::string HashSecret(const std::string& Text);

// Takes the same time wherever the texts differ.
bool AreSecretsEqual(const std::string& A, const std::string& B);

// A message authentication code, keyed by 32 random bytes.
std::string SignText(const std::string& Text, const std::string& Key);
