// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QFileSystemWatcher>
#include <QTimer>

#include "CoreMinimal.h"

// Tells when it is worth to look whether somebody has written to a store. Where the system tells of writes, nothing runs while there
// are none.
class FStoreWatch
{
public:
	explicit FStoreWatch(const FString& File);

	// Fires on the game thread's event loop, several times for one change: the system tells of the bytes that are written to the log, but
	// they count only from a later moment on, of which it doesn't tell.
	TFunction<void()> OnLook;

private:
	void HandleWritten();
	void Look();

	QFileSystemWatcher Watcher;
	QTimer Timer;
	// Looks all the time where the system can't tell.
	QTimer Poll;
};
