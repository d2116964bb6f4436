// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/StoreWatch.h"

#include "Http/QtText.h"
#include "Store/LogVorelStore.h"

// Each pause is four times as long as the one before.
static constexpr int FirstPauseInMilliseconds = 40;
static constexpr int LongestPauseInMilliseconds = 3000;

FStoreWatch::FStoreWatch(const FString& File)
{
	QObject::connect(&Poll, &QTimer::timeout, &Poll, [this] { OnLook(); });
	if (!Watcher.addPaths({ToQString(File), ToQString(File + TEXT("-wal"))}).isEmpty())
	{
		UE_LOG(LogVorelStore, Log, TEXT("%s can't be watched, so it is looked at every few seconds"), *File);
		Poll.start(LongestPauseInMilliseconds);
	}
	Timer.setSingleShot(true);
	QObject::connect(&Watcher, &QFileSystemWatcher::fileChanged, &Timer, [this] { HandleWritten(); });
	QObject::connect(&Timer, &QTimer::timeout, &Timer, [this] { Look(); });
}

void FStoreWatch::HandleWritten()
{
	Timer.start(FirstPauseInMilliseconds);
}

void FStoreWatch::Look()
{
	OnLook();
	const int NextPause = Timer.interval() * 4;
	if (NextPause <= LongestPauseInMilliseconds)
	{
		Timer.start(NextPause);
	}
}
