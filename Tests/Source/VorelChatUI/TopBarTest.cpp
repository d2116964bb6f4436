// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatPanelActions.h"
#include "Chat/STopBar.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/SOverlay.h"
#include <gtest/gtest.h>

TEST(TopBar, KeepsItsPartsInTheirPlacesInAnyWidth)
{
	for (const double Width : {320.0, 1000.0})
	{
		const TSharedRef<STopBar> Bar = SNew(STopBar);
		FUserDriver User(SNew(SOverlay) + SOverlay::Slot().VAlign(VAlign_Top)[Bar], FVector2D(Width, 300.0));
		const FGeometry& Logo = FindOne(Bar, TEXT("SImage"))->GetCachedGeometry();
		EXPECT_EQ(Logo.GetAbsolutePosition(), FVector2D(30.0, 15.0));
		EXPECT_EQ(Logo.GetLocalSize(), FVector2D(125.0, 26.25));
		const FGeometry& Button = FindOne(Bar, TEXT("SButton"))->GetCachedGeometry();
		EXPECT_EQ(Button.GetLocalSize(), FVector2D(25.0, 25.0));
		const FGeometry& History = FindOne(Bar, TEXT("SChatHistory"))->GetCachedGeometry();
		EXPECT_EQ(History.GetRenderBoundingRect().Right, Width - 20.0);
		EXPECT_EQ(History.GetAbsolutePosition().X - Button.GetRenderBoundingRect().Right, 5.0);
	}
}

TEST(TopBar, PassesTheClickOn)
{
	FLogCapture Log;
	int32 NumRequested = 0;
	const TSharedRef<FChatPanelActions> Actions = MakeShared<FChatPanelActions>();
	FUserDriver User(SNew(STopBar).PanelActions(Actions), FVector2D(700.0, 60.0));
	User.Click(TEXT("NewChat"));
	Actions->OnNewChatRequested.BindLambda([&NumRequested] { ++NumRequested; });
	User.Click(TEXT("NewChat"));
	EXPECT_EQ(NumRequested, 1);
	EXPECT_EQ(TakeLog(Log), "");
	FUserDriver Other(SNew(STopBar), FVector2D(700.0, 60.0));
	Other.Click(TEXT("NewChat"));
	EXPECT_EQ(TakeLog(Log), "Warning: Can't request new chat, unexpected invalid action\n");
}
