// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <array>
#include <chrono>
#include <httplib.h>

// One connection, with the bounds that the HTTP library does not set: on the length of a request's head, and on the time in which the whole
// request has to be here.
class FConnectionStream final : public httplib::Stream
{
public:
	explicit FConnectionStream(socket_t InSocket);

	bool is_readable() const override;
	bool is_writable() const override;
	ssize_t read(char* Bytes, std::size_t Size) override;
	ssize_t write(const char* Bytes, std::size_t Size) override;

	// Nobody asks where requests come from.
	void get_remote_ip_and_port(std::string&, int&) const override {}
	void get_local_ip_and_port(std::string&, int&) const override {}
	socket_t socket() const override { return Socket; }

private:
	bool Fill();
	bool TakeHead(const char* Bytes, std::size_t Size);

	const socket_t Socket;
	const std::chrono::steady_clock::time_point Deadline;
	std::array<char, 4096> Buffer;
	std::size_t Begin = 0;
	std::size_t End = 0;

	// The head ends with the first empty line.
	std::size_t HeadBytes = 0;
	bool bInHead = true;
	bool bLineEmpty = true;
};
