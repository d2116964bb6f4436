// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/LoginOptions.h"

#include <ctime>

static double ReadClock(clockid_t Clock)
{
	timespec Time{};
	::clock_gettime(Clock, &Time);
	return static_cast<double>(Time.tv_sec) + static_cast<double>(Time.tv_nsec) * 1e-9;
}

FLoginClock FLoginClock::OfThisMachine()
{
	return {[] { return ReadClock(CLOCK_BOOTTIME); },
		[]
		{
			return ReadClock(CLOCK_REALTIME);
		}};
}
