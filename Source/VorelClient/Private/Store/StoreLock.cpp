// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/StoreLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace
{
// A program that was stopped in the middle of its start holds up no other for longer.
constexpr std::chrono::seconds LongestWait{5};
constexpr std::chrono::milliseconds Pause{10};
} // namespace

FStoreLock::FStoreLock(const FString& File)
	: Descriptor(::open(TCHAR_TO_UTF8(File + TEXT(".lock")), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR))
{
}

FStoreLock::~FStoreLock()
{
	if (Descriptor >= 0)
	{
		::close(Descriptor);
	}
}

void FStoreLock::Take()
{
	bAlone = ::flock(Descriptor, LOCK_EX | LOCK_NB) == 0;
	if (!bAlone)
	{
		Share();
	}
}

void FStoreLock::Share()
{
	bAlone = false;
	const auto End = std::chrono::steady_clock::now() + LongestWait;
	while (::flock(Descriptor, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK && std::chrono::steady_clock::now() < End)
	{
		std::this_thread::sleep_for(Pause);
	}
}
