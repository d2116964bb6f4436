// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/BoundedTaskQueue.h"

FConnectionGate::FConnectionGate(std::size_t InMaxConnections)
	: MaxConnections(InMaxConnections)
{
}

void FConnectionGate::Enter()
{
	std::unique_lock<std::mutex> Lock(Mutex);
	Changed.wait(Lock, [this] { return bOpen || Connections < MaxConnections; });
	++Connections;
}

void FConnectionGate::Leave()
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	--Connections;
	Changed.notify_all();
}

void FConnectionGate::Open()
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	bOpen = true;
	Changed.notify_all();
}

FBoundedTaskQueue::FBoundedTaskQueue(FConnectionGate& InGate, std::size_t Workers)
	: Gate(InGate)
	, Pool(Workers)
{
}

void FBoundedTaskQueue::enqueue(std::function<void()> Task)
{
	Gate.Enter();
	Pool.enqueue(
		[this, Task = std::move(Task)]
		{
			Task();
			Gate.Leave();
		});
}
