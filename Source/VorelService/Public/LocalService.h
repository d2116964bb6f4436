// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

struct FLocalServiceOptions
{
	// Folder with the guide's articles, one Markdown file each.
	std::string GuideFolder{};

	// Pause between two pieces of a streamed answer; zero sends as fast as the client reads.
	std::chrono::milliseconds PieceInterval{8};

	// A longer body of a chat request is refused with status 413.
	std::size_t MaxRequestBytes = 32 * 1024 * 1024;

	// Connections served at once; a further one waits until one of them has ended.
	std::size_t MaxConnections = 8;

	// SQLite file of accounts, logins and credits. Several services may share it. Empty: in memory, for one run.
	std::string DataFile{};

	// False: one local account, whose name is asked once; for this machine alone. True: accounts with passwords, see FAccountDirectory.
	bool bPasswords = false;

	// An address of this machine, and the port there; 0 takes any free one.
	std::string ListenHost = "127.0.0.1";
	int Port = 0;

	// Scheme, host and port under which the service is reached through a proxy. Empty: as it listens.
	std::string PublicUrl{};

	// Answers in agent mode that an account gets on one day of UTC, unless it tops up.
	int DailyCredits = 100;

	// What the version feed announces.
	std::string Version{};

	// A bearer token that acts as the local account as long as the service runs. Empty: none.
	std::string OwnerKey{};

	// Seconds since 1970; empty: the system's clock.
	std::function<std::int64_t()> Clock{};
};

// The assistant that works without configuration: a chat-completions server that answers from the built-in guide, with the sign-in,
// accounts and pages that belong to it. It runs on threads of its own and shares nothing with its owner but its address.
class FLocalService
{
public:
	// Null when the guide or the data file can't be used or the port is taken; OutError then holds a sentence for people.
	static std::unique_ptr<FLocalService> Start(const FLocalServiceOptions& Options, std::string& OutError);

	// Breaks off the answers under way and waits for the threads.
	~FLocalService();

	// "http://127.0.0.1:PORT", or the public URL. Chat completions are served below "/v1".
	const std::string& GetAddress() const;

	// On which it listens, whatever its address.
	int GetPort() const;

private:
	class FRunning;

	explicit FLocalService(std::unique_ptr<FRunning> InRunning);

	std::unique_ptr<FRunning> Running;
};
