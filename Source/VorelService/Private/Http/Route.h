// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstddef>
#include <httplib.h>

struct FRoute
{
	// "GET" answers "HEAD" too.
	const char* Method;
	const char* Path;
	httplib::Server::Handler Handler;
	std::size_t MaxBodyBytes = 64 * 1024;

	// Asked before a longer body is read, of which strangers must not fill the memory with many. False: the response says why. To read the
	// body of a request that is refused makes sure that its sender sees the answer.
	static constexpr std::size_t MaxStrangerBytes = 1024 * 1024;
	std::function<bool(const httplib::Request& Request, httplib::Response& Response)> Admit{};
};
