// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Tokens/RefreshLock.h"

#include "Account/Tokens/PrivateFile.h"
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

// Nobody tells when a lock is let go.
static constexpr double Pause = 0.02;

static int OpenLockFile(const FString& DataFolder)
{
	return !DataFolder.IsEmpty() && PrivateFile::MakeFolder(DataFolder)
			   ? ::open(TCHAR_TO_UTF8(*(DataFolder / TEXT("login.lock"))), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR)
			   : -1;
}

FRefreshLock::FRefreshLock(const FString& DataFolder, double Seconds, TFunction<void(bool bTaken)> InOnEnded)
	: OnEnded(::MoveTemp(InOnEnded))
	, bNeeded(!DataFolder.IsEmpty())
	, Descriptor(OpenLockFile(DataFolder))
	, SecondsLeft(Seconds)
	, NextTurn([this] { Try(); })
{
	NextTurn.Ask();
}

FRefreshLock::~FRefreshLock()
{
	if (Descriptor >= 0)
	{
		::close(Descriptor);
	}
}

void FRefreshLock::Try()
{
	const bool bOpen = Descriptor >= 0;
	if (bOpen ? ::flock(Descriptor, LOCK_EX | LOCK_NB) == 0 : !bNeeded)
	{
		End(true);
	}
	else if (!bOpen || errno != EWOULDBLOCK || SecondsLeft <= 0.0)
	{
		End(false);
	}
	else
	{
		SecondsLeft -= Pause;
		NextTurn.Ask(Pause);
	}
}

void FRefreshLock::End(bool bTaken)
{
	const TFunction<void(bool)> Handler = OnEnded;
	Handler(bTaken);
}
