// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <vector>

// Tells the threads that stream an answer to break it off.
class FStopSignal
{
public:
	void Stop();

	// False once stopped, at the latest after the pause.
	bool Pause(std::chrono::milliseconds Duration);

private:
	std::mutex Mutex;
	std::condition_variable Changed;
	bool bStopped = false;
};

// Hands out the events of one answer at an even pace, after a moment of thought. The stop signal must outlive it.
class FPacedStream
{
public:
	FPacedStream(std::vector<std::string> InEvents, std::chrono::milliseconds InInterval, FStopSignal& InStopSignal);

	// The next event after its pause; null when stopped. Not to be called once finished.
	const std::string* GetNext();
	bool IsFinished() const { return NextEvent == Events.size(); }

private:
	std::vector<std::string> Events;
	std::size_t NextEvent = 0;
	std::chrono::milliseconds Interval;
	FStopSignal& StopSignal;
};
