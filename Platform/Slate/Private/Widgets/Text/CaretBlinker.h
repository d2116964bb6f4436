// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Ticker.h"
#include "Templates/SharedPointer.h"

class SWidget;

/** Shows and hides the caret of one widget. Only while it blinks does it ask for frames, and then for the caret's repainting alone. */
class FCaretBlinker
{
public:
	/** In seconds: so long it is shown, and so long it is not. */
	static constexpr float HalfPeriod = 0.5f;

	/** For all carets; one that does not blink stays shown. */
	static void SetEnabled(bool bEnabled);

	~FCaretBlinker() { Stop(); }

	/** Shown from now on, and again after each further call. */
	void Restart(const TSharedRef<SWidget>& InWidget);
	void Stop();
	bool IsShown() const { return bIsShown; }

private:
	bool Blink(float DeltaTime);

	static bool bIsEnabled;

	TWeakPtr<SWidget> Widget;
	FTSTicker::FDelegateHandle Ticker;
	bool bIsShown = false;
};
