// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/ConnectionServer.h"

#include "Http/ConnectionStream.h"

#include <sys/socket.h>
#include <unistd.h>

void FConnectionServer::Disconnect()
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	bDisconnected = true;
	for (const socket_t Socket : Connections)
	{
		::shutdown(Socket, SHUT_RDWR);
	}
}

bool FConnectionServer::process_and_close_socket(socket_t Socket)
{
	bool bServed = false;
	if (Enter(Socket))
	{
		FConnectionStream Stream(Socket);
		bool bClosed = false;
		bServed = process_request(Stream, true, bClosed, nullptr);
		Leave(Socket);
	}
	::shutdown(Socket, SHUT_RDWR);
	::close(Socket);
	return bServed;
}

bool FConnectionServer::Enter(socket_t Socket)
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	return !bDisconnected && Connections.insert(Socket).second;
}

void FConnectionServer::Leave(socket_t Socket)
{
	const std::lock_guard<std::mutex> Lock(Mutex);
	Connections.erase(Socket);
}
