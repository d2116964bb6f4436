// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstdint>

class FServiceDatabase;

// How many answers each account has left on a day of UTC. Each call throws an FStoreError where the file can't be used.
class FCreditStore
{
public:
	FCreditStore(FServiceDatabase& InDatabase, int InDailyCredits);

	int GetDaily() const { return DailyCredits; }
	int GetLeft(std::int64_t Account, std::int64_t Now);

	// False where none is left. Programs that take at the same moment never take the same one.
	bool Take(std::int64_t Account, std::int64_t Now);
	// To the number of a new day.
	void TopUp(std::int64_t Account);

	// The next midnight.
	static std::int64_t GetResetTime(std::int64_t Now);

private:
	FServiceDatabase& Database;
	const int DailyCredits;
};
