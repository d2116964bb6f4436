// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Application/GarbageTimer.h"

#include "FrameLoop.h"
#include "UObject/UObjectGlobals.h"

static constexpr int PauseInMilliseconds = 60'000;

FGarbageTimer::FGarbageTimer(FFrameLoop& InFrameLoop)
	: FrameLoop(InFrameLoop)
{
	Timer.setSingleShot(true);
	Timer.setInterval(PauseInMilliseconds);
	QObject::connect(&Timer, &QTimer::timeout, &Timer, [] { CollectGarbage(); });
	ShowFrameHandle = FrameLoop.OnShowFrame.AddLambda(
		[this]
		{
			if (!Timer.isActive())
			{
				Timer.start();
			}
		});
}

FGarbageTimer::~FGarbageTimer()
{
	FrameLoop.OnShowFrame.Remove(ShowFrameHandle);
}
