// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

struct FLocalServiceOptions
{
	// Folder with the guide's articles, one Markdown file each.
	std::string GuideFolder{};

	// Pause between two pieces of a streamed answer; zero sends as fast as the client reads.
	std::chrono::milliseconds PieceInterval{8};

	// A longer request body is refused with status 413.
	std::size_t MaxRequestBytes = 32 * 1024 * 1024;

	// Connections served at once; a further one waits until one of them has ended.
	std::size_t MaxConnections = 8;
};

// The assistant that works without configuration: a chat-completions server on a free loopback port that answers from the built-in guide.
// It runs on threads of its own and shares nothing with its owner but its address.
class FLocalService
{
public:
	// Null when the guide can't be read or no port is free; OutError then holds a sentence for people.
	static std::unique_ptr<FLocalService> Start(const FLocalServiceOptions& Options, std::string& OutError);

	// Breaks off the answers under way and waits for the threads.
	~FLocalService();

	// "http://127.0.0.1:PORT". Chat completions are served below "/v1".
	const std::string& GetAddress() const { return Address; }

private:
	class FServer;

	explicit FLocalService(std::unique_ptr<FServer> InServer, std::string InAddress);

	std::unique_ptr<FServer> Server;
	std::string Address;
};
