// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatPanelActions.h"
#include "Chat/STopBar.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/SOverlay.h"
#include <gtest/gtest.h>

TEST(TopBar, KeepsItsPartsInTheirPlacesInAnyWidth)
{
	const TSharedRef<STopBar> Bar = SNew(STopBar);
	FUserDriver User(SNew(SOverlay) + SOverlay::Slot().VAlign(VAlign_Top)[Bar], FVector2D(320.0, 300.0), 1.0f, EDriverFonts::Even);
	EXPECT_EQ(ToUtf8(User.Tree()), R"(SOverlay 0,0 320x300
  STopBar 0,0 320x56.25
    SBorder 0,0 320x56.25
      SBox 0,0 320x56.25
        SHorizontalBox 20,15 280x26.25
          SImage 30,15 125x26.25
          SNullWidget 155,15 23x26.25
          SBox 178,15.63 25x25
            SButton 178,15.63 25x25 name="NewChat"
              SImage 184,21.63 13x13
          SChatHistory 208,15 92x26.25
            SBox 208,15 92x26.25
              SComboBox 208,15 92x26.25
                SHorizontalBox 220,20.13 72x16
                  SBox 220,20.13 56x16
                    STextBlock 220,20.13 56x16 "History"
                  SImage 278,22.13 12x12
)");
	EXPECT_EQ(FindOne(Bar, TEXT("SImage"), 1)->GetDesiredSize(), FVector2D(12.0, 12.0));
	User.Resize(FVector2D(1000.0, 300.0));
	EXPECT_EQ(FindOne(Bar, TEXT("SImage"))->GetCachedGeometry().GetLocalSize(), FVector2D(125.0, 26.25));
	EXPECT_EQ(FindOne(Bar, TEXT("SButton"))->GetCachedGeometry().GetAbsolutePosition(), FVector2D(858.0, 15.625));
	EXPECT_EQ(FindOne(Bar, TEXT("SChatHistory"))->GetCachedGeometry().GetRenderBoundingRect().Right, 980.0);
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
