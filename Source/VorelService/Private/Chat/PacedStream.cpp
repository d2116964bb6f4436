// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/PacedStream.h"

// A moment of thought, in intervals: without it nobody would see that the question was taken before the answer stands there.
static constexpr int ThinkingIntervals = 75;

void FStopSignal::Stop()
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	bStopped = true;
	Changed.notify_all();
}

bool FStopSignal::Pause(std::chrono::milliseconds Duration)
{
	std::unique_lock<std::mutex> Lock(Mutex);
	return !Changed.wait_for(Lock, Duration, [this] { return bStopped; });
}

FPacedStream::FPacedStream(std::vector<std::string> InEvents, std::chrono::milliseconds InInterval, FStopSignal& InStopSignal)
	: Events(std::move(InEvents))
	, Interval(InInterval)
	, StopSignal(InStopSignal)
{
}

const std::string* FPacedStream::GetNext()
{
	const auto Pause = NextEvent == 0 ? ThinkingIntervals * Interval : Interval;
	return StopSignal.Pause(Pause) ? &Events[NextEvent++] : nullptr;
}
