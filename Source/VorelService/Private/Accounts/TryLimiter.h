// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <string>

// Slows down who guesses: growing pauses for one name, and a bound for all names together.
class FTryLimiter
{
public:
	// Counts a try as failed until it is known to have succeeded, so that many at once gain nothing. Not 0: the seconds to wait, and it did
	// not count.
	int Begin(const std::string& Name, std::int64_t Now);
	void Succeed(const std::string& Name);

private:
	struct FTries
	{
		int Count = 0;
		std::int64_t Last = 0;
	};

	void Forget(std::int64_t Now);

	std::mutex Mutex;

	// Of the last hour. The bound for all names keeps this small.
	std::map<std::string, FTries> TriesByName;

	// Each try moves it ahead. How far it may be ahead of the clock is the number of tries that may come at once.
	std::int64_t PaidUntil = 0;
};
