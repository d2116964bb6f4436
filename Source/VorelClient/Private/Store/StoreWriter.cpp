// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/StoreWriter.h"

#include "Store/LogVorelStore.h"

// How long to wait before a write that failed is tried again.
static constexpr std::chrono::seconds RetryPause{3};

FStoreWriter::FStoreWriter(TUniquePtr<FConversationStore> InStore)
	: Store(::MoveTemp(InStore))
	, Thread([this] { RunThread(); })
{
}

FStoreWriter::~FStoreWriter()
{
	{
		const std::lock_guard Lock(Mutex);
		bStopping = true;
	}
	Changed.notify_all();
	Thread.join();
	UE_CLOG(!Writes.empty(), LogVorelStore, Error, TEXT("What was new could not be stored and is lost: %d changes"),
		static_cast<int32>(Writes.size()));
}

void FStoreWriter::Write(FStoreWrite Write)
{
	{
		const std::lock_guard Lock(Mutex);
		const bool bReplaces = Write.Subject && Writes.size() > 1 && Writes.back().Subject == Write.Subject;
		if (bReplaces)
		{
			Writes.pop_back();
		}
		Writes.push_back(::MoveTemp(Write));
	}
	Changed.notify_all();
}

void FStoreWriter::LookForForeignChange(bool bKnown)
{
	{
		const std::lock_guard Lock(Mutex);
		bLookAsked = true;
		bForeignChangeKnown = bForeignChangeKnown || bKnown;
	}
	Changed.notify_all();
}

bool FStoreWriter::IsIdle() const
{
	const std::lock_guard Lock(Mutex);
	return Writes.empty();
}

void FStoreWriter::WaitUntilIdle(std::chrono::milliseconds Longest)
{
	std::unique_lock Lock(Mutex);
	Changed.wait_for(Lock, Longest, [this] { return Writes.empty() || Trouble != EStoreProblem::None; });
}

void FStoreWriter::RunThread()
{
	std::unique_lock Lock(Mutex);
	// Each try waits for as long as another program may hold the file.
	int32 TriesAtEnd = 5;
	while (!bStopping || (!Writes.empty() && (!bLastFailed || (Trouble == EStoreProblem::Locked && TriesAtEnd-- > 0))))
	{
		if (bLastFailed)
		{
			Changed.wait_for(Lock, RetryPause, [this] { return bStopping; });
		}
		else
		{
			Changed.wait(Lock, [this] { return bStopping || bLookAsked || !Writes.empty(); });
		}
		if (!Writes.empty())
		{
			RunFirstWrite(Lock);
		}
		else if (bLookAsked)
		{
			Look(Lock);
		}
	}
}

void FStoreWriter::RunFirstWrite(std::unique_lock<std::mutex>& Lock)
{
	// Stays where it is meanwhile; only those behind it may change.
	const FStoreWrite& Write = Writes.front();
	Lock.unlock();
	const FStoreError Error = Write.Run(*Store);
	Lock.lock();
	// No later try would end otherwise.
	const bool bHopeless = Error.Problem == EStoreProblem::Conflict;
	if (bHopeless)
	{
		PostToGameThread([Detail = Error.Detail] { UE_LOG(LogVorelStore, Error, TEXT("A change could not be stored: %s"), *Detail); });
	}
	bLastFailed = Error && !bHopeless;
	if (!bLastFailed)
	{
		Writes.pop_front();
	}
	if (bLastFailed || Writes.empty())
	{
		SetTrouble(bLastFailed ? Error : FStoreError());
	}
	Changed.notify_all();
}

void FStoreWriter::Look(std::unique_lock<std::mutex>& Lock)
{
	bool bForeign = false;
	const bool bKnown = std::exchange(bForeignChangeKnown, false);
	bLookAsked = false;
	Lock.unlock();
	const FStoreError Error = Store->HasForeignChange(bForeign);
	if (bKnown || (bForeign && !Error))
	{
		PostToGameThread([this] { OnForeignChange(); });
	}
	Lock.lock();
}

void FStoreWriter::SetTrouble(const FStoreError& Error)
{
	if (Trouble != Error.Problem)
	{
		Trouble = Error.Problem;
		PostToGameThread([this, Error] { OnTrouble(Error); });
	}
}

void FStoreWriter::PostToGameThread(TFunction<void()> Work)
{
	QMetaObject::invokeMethod(
		&GameThread, [Work] { Work(); }, Qt::QueuedConnection);
}
