// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatPanelActions.h"
#include "Chat/SBottomBar.h"
#include "Support/FakeClient/FakeClient.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"
#include <gtest/gtest.h>

namespace
{

class BottomBar : public testing::Test
{
protected:
	BottomBar()
	{
		Actions->OnChatModeSelected.BindLambda(
			[this](const FString& ModeName) { Fired += TakeLog(Log) + "mode " + ToUtf8(ModeName) + "; "; });
		Client.Calls->Allow(TEXT("Logout"));
	}

	TSharedRef<SBottomBar> MakeBar(const TArray<FString>& Modes, const FString& Mode, const TSharedPtr<FChatPanelActions>& InActions) const
	{
		return SNew(SBottomBar)
			.AuthService(Client.Auth)
			.ChatModes(Modes)
			.CurrentChatMode(Mode)
			.PanelActions(InActions)
			.UserName(TEXT("Kim"))
			.Credits(1234567);
	}

	// The label of the picker, in brackets while it is locked.
	static std::string Read(FUserDriver& InUser, const TSharedRef<SBottomBar>& Bar)
	{
		// The label is bound, so a frame must read it.
		InUser.AdvanceTime(0.0f);
		const TSharedRef<SWidget> Picker = FindOne(Bar, TEXT("SComboBox"));
		return Picker->IsEnabled() ? ReadTexts(Picker) : "[" + ReadTexts(Picker) + "]";
	}

	void Pick(FUserDriver& InUser, const TSharedRef<SBottomBar>& Bar, const TCHAR* Mode)
	{
		InUser.ClickAt(FindOne(Bar, TEXT("SComboBox"))->GetCachedGeometry().LocalToAbsolute(FVector2D(8.0, 8.0)));
		InUser.Click(Mode);
	}

	FFakeClient Client;
	FLogCapture Log;
	std::string Fired;
	TSharedRef<FChatPanelActions> Actions = MakeShared<FChatPanelActions>();
	TSharedRef<SBottomBar> Widget = MakeBar(Client.Chat->ChatModeNames, TEXT("ask"), Actions);
	FUserDriver User{SNew(SOverlay) + SOverlay::Slot().VAlign(VAlign_Bottom)[Widget], FVector2D(680.0, 300.0), 1.0f, EDriverFonts::Even};
};

} // namespace

TEST_F(BottomBar, HasItsMeasures)
{
	EXPECT_EQ(ToUtf8(User.Tree()), R"(SOverlay 0,0 680x300
  SBottomBar 0,260 680x40
    SBox 0,260 680x40
      SHorizontalBox 1,268 679x22
        SComboBox 1,268 56x22
          SHorizontalBox 11,271 40x16
            SBox 11,271 24x16
              STextBlock 11,271 24x16 "Ask"
            SImage 37,273 12x12
        SHorizontalBox 69,272.5 133x13
          SImage 69,273 12x12
          STextBlock 86,272.5 116x13 "Credits: 1,234,567"
        STextBlock 214,272.5 425x13 "Licenced to: Kim"
        SHyperlink 639,272 39x14
          STextBlock 639,272 39x13 "Logout"
)");
}

TEST_F(BottomBar, FollowsTheModeAndLocksABegunAgentConversation)
{
	struct FCase
	{
		const TCHAR* Mode;
		bool bIsEmpty;
		const char* Expected;
	};
	const FCase Cases[] = {
		{TEXT("AUTOPILOT"), true, "Autopilot"},
		{TEXT("Autopilot"), false, "[Autopilot]"},
		{TEXT("Gone"), false, "[Autopilot]"},
		{TEXT("Gone"), true, "Autopilot"},
		{TEXT("default agent"), false, "[Default Agent]"},
		{TEXT("Reagent Lab"), false, "Reagent Lab"},
		{TEXT("Default Agent"), false, "[Default Agent]"},
		{TEXT("Default Agent"), true, "Default Agent"},
	};
	for (const FCase& Case : Cases)
	{
		Widget->UpdateSelectedMode(Case.Mode, Case.bIsEmpty);
		EXPECT_EQ(Read(User, Widget), Case.Expected) << ToUtf8(Case.Mode) << Case.bIsEmpty;
	}
	EXPECT_EQ(Fired, "");
	EXPECT_EQ(TakeLog(Log), "") << "what code selects is no choice of the user";
}

TEST_F(BottomBar, ReportsTheUsersChoice)
{
	Pick(User, Widget, TEXT("Ask"));
	EXPECT_EQ(Fired, "") << "it is the mode already";
	Pick(User, Widget, TEXT("Reagent Lab"));
	EXPECT_EQ(std::exchange(Fired, ""), "Log: Chat mode changed to: Reagent Lab\nmode Reagent Lab; ");
	EXPECT_EQ(Read(User, Widget), "Reagent Lab");
	Widget->UpdateSelectedMode(TEXT("Default Agent"), true);
	Pick(User, Widget, TEXT("Default Agent"));
	EXPECT_EQ(Fired, "") << "by code it has become the mode";
	Pick(User, Widget, TEXT("Reagent Lab"));
	EXPECT_EQ(Fired, "Log: Chat mode changed to: Reagent Lab\nmode Reagent Lab; ");
}

TEST_F(BottomBar, AmongEqualNamesTheLastIsShownAtFirstAndTheFirstIsFoundLater)
{
	const TSharedRef<SBottomBar> Twins = MakeBar({TEXT("ask"), TEXT("ASK")}, TEXT("Ask"), Actions);
	FUserDriver Other(Twins, FVector2D(680.0, 300.0));
	EXPECT_EQ(Read(Other, Twins), "ASK");
	Twins->UpdateSelectedMode(TEXT("Ask"), true);
	EXPECT_EQ(Read(Other, Twins), "ask");
}

TEST_F(BottomBar, WithoutActionsAChoiceIsDroppedAndALongNameIsCut)
{
	const TCHAR* const Long = TEXT("A mode with a name that is far too long for its place");
	const TSharedRef<SBottomBar> Deaf = MakeBar({Long, TEXT("Ask")}, TEXT("Other"), nullptr);
	FUserDriver Other(SNew(SOverlay) + SOverlay::Slot().VAlign(VAlign_Top)[Deaf], FVector2D(680.0, 300.0));
	EXPECT_EQ(Read(Other, Deaf), "");
	Deaf->UpdateSelectedMode(Long, true);
	Pick(Other, Deaf, TEXT("Ask"));
	EXPECT_EQ(Read(Other, Deaf), ToUtf8(Long));
	EXPECT_EQ(FindOne(Deaf, TEXT("SComboBox"))->GetCachedGeometry().GetLocalSize().X, 140.0);
	EXPECT_EQ(TakeLog(Log), "");
	Other.Click(TEXT("Logout"));
	EXPECT_EQ(ToUtf8(Client.Calls->Take()), "Logout()");
}
