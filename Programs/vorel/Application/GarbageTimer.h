// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Delegates/Delegate.h"

#include <QTimer>

class FFrameLoop;

// Collects garbage a while after frames have run, between events. Where nothing happens, nothing is collected.
class FGarbageTimer
{
public:
	explicit FGarbageTimer(FFrameLoop& InFrameLoop);
	~FGarbageTimer();

private:
	FFrameLoop& FrameLoop;
	FDelegateHandle ShowFrameHandle;
	QTimer Timer;
};
