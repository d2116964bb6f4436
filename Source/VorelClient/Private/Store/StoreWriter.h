// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QObject>

#include "ConversationStore.h"
#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

struct FStoreWrite
{
	TFunction<FStoreError(FConversationStore&)> Run;

	// Of two writes with the same subject that wait one behind the other only the later is run. Null: it has none.
	std::shared_ptr<void> Subject;
};

// Writes what it is given on a thread of its own, in order. What can't be written is kept, and tried again until it can be.
class FStoreWriter
{
public:
	explicit FStoreWriter(TUniquePtr<FConversationStore> InStore);

	// Returns once all is written, or could not be at a last try, or at some where others have locked the file.
	~FStoreWriter();

	// Both fire on the game thread's event loop. OnTrouble: a write failed, or, without an error, all was written after such a failure.
	TFunction<void(const FStoreError&)> OnTrouble;
	TFunction<void()> OnForeignChange;

	void Write(FStoreWrite Write);

	// Looks, behind what waits to be written, whether another program has changed the store; or takes it for changed.
	void LookForForeignChange(bool bKnown);

	// Nothing waits to be written.
	bool IsIdle() const;

	// Returns at once while there is trouble.
	void WaitUntilIdle(std::chrono::milliseconds Longest);

private:
	void RunThread();
	void RunFirstWrite(std::unique_lock<std::mutex>& Lock);
	void Look(std::unique_lock<std::mutex>& Lock);
	void SetTrouble(const FStoreError& Error);
	void PostToGameThread(TFunction<void()> Work);

	// Of the thread alone.
	TUniquePtr<FConversationStore> Store;

	// Guards what follows.
	mutable std::mutex Mutex;
	std::condition_variable Changed;
	// The first one may be running.
	std::deque<FStoreWrite> Writes;
	bool bLookAsked = false;
	bool bForeignChangeKnown = false;
	bool bLastFailed = false;
	bool bStopping = false;
	// What was told last.
	EStoreProblem Trouble = EStoreProblem::None;

	// Ends what was posted to the game thread when the writer goes.
	QObject GameThread;
	std::thread Thread;
};
