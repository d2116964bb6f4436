// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <httplib.h>
#include <mutex>
#include <set>

// The HTTP library's server, which serves each connection through a stream of our own and can end them all.
class FConnectionServer final : public httplib::Server
{
public:
	// Breaks off what is being served, so that nobody who sends or reads slowly holds the end of the program, and serves nothing more.
	void Disconnect();

private:
	// On a thread for each connection, which carries one request.
	bool process_and_close_socket(socket_t Socket) override;

	bool Enter(socket_t Socket);
	void Leave(socket_t Socket);

	std::mutex Mutex;
	std::set<socket_t> Connections;
	bool bDisconnected = false;
};
