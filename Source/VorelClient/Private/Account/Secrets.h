// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>
#include <string_view>

namespace Secrets
{
// 43 letters, digits, "-" and "_" of 32 random bytes.
std::string MakeRandom();

// The SHA-256 hash in the same letters.
std::string Hash(std::string_view Text);

// Takes as long wherever the two differ.
bool AreEqual(std::string_view A, std::string_view B);
} // namespace Secrets
