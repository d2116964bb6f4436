// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Application/SlateApplication.h"

/** The passes of a frame, in their order. */
class FSlateFrame
{
public:
	static FSlateFrameStats& GetStats();

	void Run(const TArray<TSharedRef<SWindow>>& Windows, double CurrentTime, float DeltaTime);

	/** Whether something is left to do in a further frame. */
	bool IsAnotherNeeded(const TArray<TSharedRef<SWindow>>& Windows) const;

	uint64 GetFrameNumber() const { return FrameNumber; }

private:
	/** Adds the widgets in view that have bound attributes or tick, and those that may come into view by a bound visibility. */
	static void CollectWantingFrames(SWidget& Widget, TArray<TSharedRef<SWidget>>& OutWidgets);
	static TArray<TSharedRef<SWidget>> GetWantingFrames(SWindow& Window);
	static bool IsLayoutPending(const SWindow& Window);

	void ReadAttributes(SWindow& Window);
	void TickWidgets(SWindow& Window, double CurrentTime, float DeltaTime);
	void LayOut(SWindow& Window);
	void Paint(SWindow& Window);

	uint64 FrameNumber = 0;
};
