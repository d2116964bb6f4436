// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "CaretBlinker.h"

#include "Widgets/SWidget.h"

bool FCaretBlinker::bIsEnabled = true;

void FCaretBlinker::SetEnabled(bool bEnabled)
{
	bIsEnabled = bEnabled;
}

void FCaretBlinker::Restart(const TSharedRef<SWidget>& InWidget)
{
	Stop();
	Widget = InWidget;
	bIsShown = true;
	if (bIsEnabled)
	{
		Ticker = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateRaw(this, &FCaretBlinker::Blink), HalfPeriod);
	}
	InWidget->Invalidate(EInvalidateWidgetReason::Paint);
}

void FCaretBlinker::Stop()
{
	FTSTicker::RemoveTicker(Ticker);
	Ticker.Reset();
	bIsShown = false;
}

bool FCaretBlinker::Blink(float DeltaTime)
{
	bIsShown = !bIsShown || !bIsEnabled;
	if (const TSharedPtr<SWidget> Pinned = Widget.Pin())
	{
		Pinned->Invalidate(EInvalidateWidgetReason::Paint);
	}
	return bIsEnabled;
}
