// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Http/BoundedTaskQueue.h"
#include "Http/ConnectionServer.h"
#include "Http/RequestRules.h"

#include <memory>
#include <thread>

// The port and the threads behind it.
class FHttpServer
{
public:
	// MaxBodyBytes: of any route.
	FHttpServer(std::size_t MaxConnections, std::size_t MaxBodyBytes);
	~FHttpServer();

	// Port 0 takes any free one. The port, or -1 where it can't be had.
	int Bind(const std::string& Host, int Port);

	// Once, after Bind.
	void Run(std::vector<FRoute> Routes, FOwnAddresses Addresses);

	// Breaks off what is being served, and waits for the threads.
	void Stop();

private:
	FConnectionGate Gate;
	FConnectionServer Http;
	std::unique_ptr<FRequestRules> Rules;
	std::thread Thread;
};
