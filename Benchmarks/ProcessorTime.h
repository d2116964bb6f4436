// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <ctime>

// Of this thread, so that other work on the machine does not count.
inline double GetProcessorMilliseconds()
{
	timespec Time = {};
	::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &Time);
	return static_cast<double>(Time.tv_sec) * 1e3 + static_cast<double>(Time.tv_nsec) * 1e-6;
}

template <typename WorkType>
double MeasureProcessorMilliseconds(WorkType Work)
{
	const double Start = GetProcessorMilliseconds();
	Work();
	return GetProcessorMilliseconds() - Start;
}
