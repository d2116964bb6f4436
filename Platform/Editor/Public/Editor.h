// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "TimerManager.h"
#include "UObject/Object.h"

// The running editor.
class UEditorEngine : public UObject
{
public:
	// The host makes and ends GEditor.
	static void Startup();
	static void Shutdown();

	TSharedRef<FTimerManager> GetTimerManager() const { return TimerManager; }

private:
	TSharedRef<FTimerManager> TimerManager = MakeShared<FTimerManager>();
};

// Null outside the editor.
extern UEditorEngine* GEditor;
