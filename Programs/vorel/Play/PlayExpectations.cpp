// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayExpectations.h"

#include "Play/PlayStage.h"
#include "Play/ScreenReport.h"
#include "Play/WidgetSearch.h"
#include "QSlateWidget.h"
#include "Widgets/WidgetTreeDump.h"

static bool IsShown(IPlayStage& Stage, const FString& Text)
{
	const QSlateWidget* const Content = Stage.GetTabContent();
	return Content && !FWidgetSearch::FindText(*Content->GetWindow(), Text).IsEmpty();
}

static FPlayResult FailText(IPlayStage& Stage, const FString& Text, bool bShown, const FString& When)
{
	const TCHAR* const Format = bShown ? TEXT("no widget shows %s%s%s") : TEXT("a widget shows %s%s%s");
	return FPlayResult::Fail(FString::Printf(Format, *FWidgetTreeDump::Quote(Text), *When, *ReportScreen(Stage)));
}

FPlayStep PlayExpectations::ExpectText(const FString& Text, bool bShown)
{
	return [Text, bShown](IPlayStage& Stage, double)
	{
		return IsShown(Stage, Text) == bShown ? FPlayResult::Done() : FailText(Stage, Text, bShown, FString());
	};
}

FPlayStep PlayExpectations::WaitText(const FString& Text, bool bShown, double Patience)
{
	return [Text, bShown, Patience](IPlayStage& Stage, double Seconds)
	{
		if (IsShown(Stage, Text) == bShown)
		{
			return FPlayResult::Done();
		}
		const FString When = FString::Printf(TEXT(" after %g seconds"), Patience);
		return Seconds < Patience ? FPlayResult::NotYet() : FailText(Stage, Text, bShown, When);
	};
}

FPlayStep PlayExpectations::WaitIdle(double Patience)
{
	// What comes in by way of the event loop may still set off something in the moment after the last frame.
	constexpr double LeastQuiet = 0.05;
	return [Patience, LastBusy = 0.0](IPlayStage& Stage, double Seconds) mutable
	{
		const bool bRequest = Stage.IsRequestUnderWay();
		LastBusy = bRequest || !Stage.IsPainted() ? Seconds : LastBusy;
		if (Seconds - LastBusy >= LeastQuiet)
		{
			return FPlayResult::Done();
		}
		const TCHAR* const What = bRequest ? TEXT("a request is still under way") : TEXT("something still moves");
		return Seconds < Patience + LeastQuiet
				   ? FPlayResult::NotYet()
				   : FPlayResult::Fail(FString::Printf(TEXT("%s after %g seconds%s"), What, Patience, *ReportScreen(Stage)));
	};
}
