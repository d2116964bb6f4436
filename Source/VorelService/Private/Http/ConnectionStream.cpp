// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/ConnectionStream.h"

#include <algorithm>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>

namespace
{
constexpr std::size_t MaxHeadBytes = 64 * 1024;
constexpr std::chrono::seconds MaxRequestTime{60};
constexpr int ReadTimeoutMilliseconds = 2000;
constexpr int WriteTimeoutMilliseconds = 5000;

bool Wait(socket_t Socket, short Events, int Milliseconds)
{
	pollfd Connection{Socket, Events, 0};
	return ::poll(&Connection, 1, Milliseconds) > 0;
}
} // namespace

FConnectionStream::FConnectionStream(socket_t InSocket)
	: Socket(InSocket)
	, Deadline(std::chrono::steady_clock::now() + MaxRequestTime)
{
}

bool FConnectionStream::is_readable() const
{
	return Begin < End || Wait(Socket, POLLIN, ReadTimeoutMilliseconds);
}

bool FConnectionStream::is_writable() const
{
	// A client that has closed its end reads nothing more.
	char Byte = 0;
	return Wait(Socket, POLLOUT, WriteTimeoutMilliseconds) && ::recv(Socket, &Byte, 1, MSG_PEEK | MSG_DONTWAIT) != 0;
}

ssize_t FConnectionStream::read(char* Bytes, std::size_t Size)
{
	if (Begin == End && !Fill())
	{
		return -1;
	}
	const std::size_t Taken = std::min(Size, End - Begin);
	std::memcpy(Bytes, &Buffer[Begin], Taken);
	Begin += Taken;
	return TakeHead(Bytes, Taken) ? static_cast<ssize_t>(Taken) : -1;
}

ssize_t FConnectionStream::write(const char* Bytes, std::size_t Size)
{
	return is_writable() ? ::send(Socket, Bytes, Size, MSG_NOSIGNAL) : -1;
}

bool FConnectionStream::Fill()
{
	if (std::chrono::steady_clock::now() >= Deadline || !Wait(Socket, POLLIN, ReadTimeoutMilliseconds))
	{
		return false;
	}
	const ssize_t Received = ::recv(Socket, Buffer.data(), Buffer.size(), 0);
	Begin = 0;
	End = static_cast<std::size_t>(std::max<ssize_t>(Received, 0));
	return Received > 0;
}

bool FConnectionStream::TakeHead(const char* Bytes, std::size_t Size)
{
	for (std::size_t Index = 0; bInHead && Index < Size; ++Index)
	{
		bInHead = Bytes[Index] != '\n' || !bLineEmpty;
		bLineEmpty = Bytes[Index] == '\n' || (bLineEmpty && Bytes[Index] == '\r');
		++HeadBytes;
	}
	return HeadBytes <= MaxHeadBytes;
}
