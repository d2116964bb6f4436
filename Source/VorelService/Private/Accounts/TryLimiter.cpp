// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Accounts/TryLimiter.h"

#include <algorithm>

namespace
{
constexpr int FreeTries = 5;
constexpr std::int64_t MaxPauseSeconds = 300;
constexpr std::int64_t RememberedSeconds = 60 * 60;

// For all names: 60 tries at once, then one in two seconds.
constexpr std::int64_t SecondsPerTry = 2;
constexpr std::int64_t MaxSecondsAhead = 60 * SecondsPerTry;

std::int64_t GetPause(int Count)
{
	return Count < FreeTries ? 0 : std::min<std::int64_t>(std::int64_t{1} << std::min(Count - FreeTries, 30), MaxPauseSeconds);
}
} // namespace

int FTryLimiter::Begin(const std::string& Name, std::int64_t Now)
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	Forget(Now);
	const auto Found = TriesByName.find(Name);
	const std::int64_t NamePause = Found == TriesByName.end() ? 0 : Found->second.Last + GetPause(Found->second.Count) - Now;
	const std::int64_t SecondsAhead = PaidUntil + SecondsPerTry - Now;
	const std::int64_t SharedPause = SecondsAhead - MaxSecondsAhead;
	if (const std::int64_t Pause = std::max(NamePause, SharedPause); Pause > 0)
	{
		return static_cast<int>(Pause);
	}
	FTries& Tries = TriesByName[Name];
	++Tries.Count;
	Tries.Last = Now;
	PaidUntil = std::max(PaidUntil, Now) + SecondsPerTry;
	return 0;
}

void FTryLimiter::Succeed(const std::string& Name)
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	TriesByName.erase(Name);
	PaidUntil -= SecondsPerTry;
}

void FTryLimiter::Forget(std::int64_t Now)
{
	// A clock that was set back must not lock anybody out for longer. Threads may read it a moment before they get here.
	PaidUntil = std::min(PaidUntil, Now + MaxSecondsAhead);
	std::erase_if(TriesByName,
		[Now](const auto& Entry) { return Entry.second.Last > Now + MaxPauseSeconds || Entry.second.Last + RememberedSeconds < Now; });
}
