// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <condition_variable>
#include <httplib.h>
#include <mutex>

// Counts the connections that are being served. The accepting thread waits here while there are as many as allowed, so that further callers
// queue up in the system's backlog instead of in our memory.
class FConnectionGate
{
public:
	explicit FConnectionGate(std::size_t MaxConnections);

	// Waits for room, or for Open.
	void Enter();
	void Leave();

	// Lets everybody in from now on; for the end, when each connection is closed as soon as it is served.
	void Open();

private:
	std::mutex Mutex;
	std::condition_variable Changed;
	std::size_t Connections = 0;
	const std::size_t MaxConnections;
	bool bOpen = false;
};

class FBoundedTaskQueue final : public httplib::TaskQueue
{
public:
	// The gate must outlive the queue.
	FBoundedTaskQueue(FConnectionGate& InGate, std::size_t Workers);

	void enqueue(std::function<void()> Task) override;
	void shutdown() override { Pool.shutdown(); }

private:
	FConnectionGate& Gate;
	httplib::ThreadPool Pool;
};
