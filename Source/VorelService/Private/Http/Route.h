// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstddef>
#include <httplib.h>

struct FServiceParts;

// Answers one request.
using FHandler = void (*)(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);

struct FRoute
{
	// "GET" answers "HEAD" too.
	const char* Method;
	const char* Path;
	httplib::Server::Handler Handler;
	std::size_t MaxBodyBytes = 64 * 1024;
};
