// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/StoreWatch.h"

#include "Assistant/QtText.h"

// Each pause is four times as long as the one before.
static constexpr int FirstPauseInMilliseconds = 40;
static constexpr int LongestPauseInMilliseconds = 3000;

FStoreWatch::FStoreWatch(const FString& File)
{
	Watcher.addPaths({ToQString(File), ToQString(File + TEXT("-wal"))});
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
