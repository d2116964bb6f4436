// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <mutex>
#include <string>

// False, with a sentence, for a password that is too short or too long to be set.
bool IsGoodPassword(const std::string& Password, std::string& OutProblem);

// By Argon2id, with salt and cost in it. Empty where the memory does not suffice.
std::string HashPassword(const std::string& Password);

// Compares passwords one after the other, since each takes 64 MB for a moment.
class FPasswordCheck
{
public:
	FPasswordCheck();

	// An empty hash, of nobody, takes as long as any other and fails.
	bool IsRight(const std::string& Password, const std::string& Hash);

private:
	const std::string HashOfNobody;
	std::mutex Mutex;
};
