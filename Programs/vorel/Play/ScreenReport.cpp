// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/ScreenReport.h"

#include "Play/PlayStage.h"
#include "Play/WidgetSearch.h"
#include "QSlateWidget.h"
#include "Widgets/WidgetTreeDump.h"

// A report is read by people: long texts are cut, and so are long lists.
static constexpr int32 LongestText = 200;
static constexpr int32 LongestList = 60;

FString ReportScreen(IPlayStage& Stage)
{
	const QSlateWidget* const Content = Stage.GetTabContent();
	if (!Content)
	{
		return TEXT("\n  no tab is open");
	}
	const TArray<FString> Texts = FWidgetSearch::GetShownTexts(*Content->GetWindow());
	FString Report = Texts.IsEmpty() ? TEXT("\n  no text was on screen") : TEXT("\n  on screen was:");
	for (int32 Index = 0; Index < FMath::Min(Texts.Num(), LongestList); ++Index)
	{
		const bool bCut = Texts[Index].Len() > LongestText;
		Report += TEXT("\n    ") + FWidgetTreeDump::Quote(Texts[Index].Left(LongestText)) + (bCut ? TEXT(" ...") : TEXT(""));
	}
	return Texts.Num() <= LongestList ? Report : Report + FString::Printf(TEXT("\n    and %d more"), Texts.Num() - LongestList);
}
