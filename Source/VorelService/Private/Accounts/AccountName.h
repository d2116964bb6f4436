// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

struct FAccountName
{
	// As it was typed, without blanks around it.
	std::string Shown{};

	// The same for all spellings of the name that look alike to a reader who ignores case.
	std::string Key{};
};

// False for what is no name, with a sentence for the user: invalid UTF-8, nothing to see, too long, control characters.
bool ReadAccountName(const std::string& Typed, FAccountName& OutName, std::string& OutProblem);
