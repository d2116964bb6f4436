// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatPanelActions.h"
#include "Chat/SInputArea.h"
#include "Chat/SNotification.h"
#include "Support/FakeClient/FakeClient.h"
#include "Support/UserDriver.h"
#include "VorelSettings.h"
#include "Widgets.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include <gtest/gtest.h>

namespace
{

class InputArea : public testing::Test
{
protected:
	InputArea()
	{
		Actions->OnSendMessage.BindLambda([this](const FString& Text) { Sent += "[" + ToUtf8(Text) + "]"; });
		User.Click(TEXT("Type your message here..."));
	}

	TSharedRef<SInputArea> MakeArea(const TSharedPtr<FChatPanelActions>& InActions) const
	{
		return SNew(SInputArea)
			.PanelActions(InActions)
			.ChatService(Client.Chat)
			.UserDataService(Client.UserData)
			.Notification(Notification);
	}

	static TSharedRef<SWidget> AtTop(const TSharedRef<SWidget>& Widget)
	{
		return SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Widget];
	}

	TSharedRef<SMultiLineEditableText> Box() const
	{
		return StaticCastSharedRef<SMultiLineEditableText>(FindOne(Area, TEXT("SMultiLineEditableText")));
	}

	std::string TakeSent() { return std::exchange(Sent, std::string()); }

	// What stands in the box.
	std::string Text() const { return ToUtf8(Box()->GetText().ToString()); }
	std::string TextAfterFailure()
	{
		Client.FailTurn(TEXT("x"));
		return Text();
	}

	FFakeClient Client;
	TSharedRef<FChatPanelActions> Actions = MakeShared<FChatPanelActions>();
	TSharedRef<SNotification> Notification = SNew(SNotification);
	TSharedRef<SInputArea> Area = MakeArea(Actions);
	FUserDriver User{AtTop(Area), FVector2D(680.0, 400.0)};
	FLogCapture Log;
	std::string Sent;
};

} // namespace

TEST_F(InputArea, EnterAndTheButtonSendAllButNothing)
{
	User.Play(TEXT("'one' Shift+Enter 'two'"));
	User.ClearFocus();
	EXPECT_EQ(TakeSent(), "");
	User.Click(TEXT("two"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeSent() + Text(), "[one\ntwo]");
	User.Press(TEXT("Enter"));
	User.Click(TEXT("Send"));
	EXPECT_EQ(TakeSent(), "");
	User.Click(TEXT("Type your message here..."));
	User.Type(TEXT("  "));
	User.Click(TEXT("Send"));
	EXPECT_EQ(TakeSent() + Text(), "[  ]");

	// An action that is not bound makes no difference to the box.
	Actions->OnSendMessage.Unbind();
	User.Click(TEXT("Type your message here..."));
	User.Play(TEXT("'lost' Enter"));
	EXPECT_EQ(Text(), "");
	EXPECT_EQ(TakeLog(Log), "");
}

TEST_F(InputArea, RefusesWhileAnAnswerIsUnderWay)
{
	Client.Chat->bIsProcessingRequest = true;
	User.Play(TEXT("'early' Enter"));
	EXPECT_EQ(TakeSent(), "");
	EXPECT_EQ(Text(), "early");
	EXPECT_EQ(TakeLog(Log), "Warning: Already receiving AI response. Please wait before sending a new message.\n");
	EXPECT_EQ(ReadTexts(Notification), "Please wait | AI is still responding. Let it finish before sending a new message.");

	// The guard asks a service that is valid only.
	Client.Chat->RemoveFromRoot();
	Client.Chat->MarkAsGarbage();
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeSent(), "[early]");
}

TEST_F(InputArea, GuardsComeInTheirOrder)
{
	const TSharedRef<SInputArea> Other = MakeArea(nullptr);
	FUserDriver OtherUser(AtTop(Other), FVector2D(680.0, 400.0));
	Client.Chat->bIsProcessingRequest = true;
	OtherUser.Click(TEXT("Send"));
	EXPECT_EQ(TakeLog(Log), "Warning: Can't send message, unexpected invalid action\n");

	Other->SetInputEnabled(false);
	const TSharedRef<SWidget> Button = FindOne(Other, TEXT("SButton"));
	EXPECT_EQ(Button->GetVisibility(), EVisibility::Collapsed);
	Button->SetVisibility(EVisibility::Visible);
	OtherUser.Click(TEXT("Send"));
	EXPECT_EQ(TakeLog(Log), "Warning: Can't send message because input is disabled\n");
	EXPECT_EQ(ReadTexts(Notification), "");
}

TEST_F(InputArea, AFailureGivesBackOnceTheLastTextSentByEnter)
{
	User.Play(TEXT("'by enter' Enter"));
	EXPECT_EQ(TextAfterFailure(), "by enter");
	// Before the next frame the tree can be read too.
	EXPECT_TRUE(User.Tree().Contains(TEXT("focused \"by enter\""), ESearchCase::CaseSensitive)) << User.Tree();
	Box()->SetText(FText::FromString(TEXT("something else")));
	EXPECT_EQ(TextAfterFailure(), "something else");
	User.Click(TEXT("Send"));
	EXPECT_EQ(TextAfterFailure(), "");

	// It is kept after a success and after a refusal.
	User.Click(TEXT("Type your message here..."));
	User.Play(TEXT("'kept' Enter"));
	Client.EndTurn(TEXT("answer"));
	User.Type(TEXT("by button"));
	User.Click(TEXT("Send"));
	EXPECT_EQ(TextAfterFailure(), "kept");
	Client.Chat->bIsProcessingRequest = true;
	User.Click(TEXT("kept"));
	User.Play(TEXT("End '!' Enter"));
	Box()->SetText(FText::GetEmpty());
	EXPECT_EQ(TextAfterFailure(), "kept!");

	// Enter in an empty box forgets it.
	User.Play(TEXT("Ctrl+A Delete Enter"));
	EXPECT_EQ(TextAfterFailure(), "");
}

TEST_F(InputArea, GrowsWithItsTextFrom40To120Units)
{
	const auto HeightAfter = [this](int NumLines)
	{
		for (int Line = 0; Line < NumLines; ++Line)
		{
			User.Press(TEXT("Shift+Enter"));
		}
		return FindOne(Area, TEXT("SBox"))->GetCachedGeometry().GetLocalSize().Y;
	};
	EXPECT_EQ(HeightAfter(0), 40.0);
	EXPECT_GT(HeightAfter(5), 40.0);
	EXPECT_EQ(HeightAfter(20), 120.0);
	EXPECT_EQ(PlaceOf(FindOne(Area, TEXT("SImage"))), "0,0 680x140");
}

TEST_F(InputArea, WithoutCreditsAnAgentModeSwitchesTheInputOffUntilTheModeChanges)
{
	const FString Agent = UChatService::DefaultAgentChatModeName;
	const std::tuple<const TCHAR*, int32, FString, bool> Rows[] = {{TEXT("Ann"), 0, Agent, false}, {TEXT("Ann"), -1, Agent, false},
		{TEXT("Ann"), 1, Agent, true}, {TEXT(""), 0, Agent, true}, {TEXT("Ann"), 0, TEXT("Ask"), true},
		{TEXT("Ann"), 0, FFakeClient::ReagentMode, true}, {TEXT("Ann"), 0, Agent, false}};
	for (const auto& [UserName, Credits, ModeName, bOn] : Rows)
	{
		Client.Chat->CurrentChatModeName = ModeName;
		Client.SetUserData(UserName, Credits);
		EXPECT_EQ(Area->IsInputEnabled(), bOn) << ToUtf8(ModeName) << " " << Credits;
		EXPECT_EQ(Box()->GetVisibility() == EVisibility::Visible, bOn);
		EXPECT_EQ(Box()->IsEnabled(), bOn);
	}
	User.Frame();
	EXPECT_EQ(ReadTexts(Area), "You have no credits left for this Agent mode. | Get more credits");
	User.Click(TEXT("Get more credits"));
	EXPECT_EQ(ToUtf8(User.TakeLaunchedURLs()), ToUtf8(UVorelSettings::Get()->GetAppUrl()) + "/billing");
	Client.Chat->OnChatModeChanged.Broadcast(TEXT("Ask"));
	EXPECT_EQ(ReadTexts(Area), "");
	EXPECT_TRUE(Area->IsInputEnabled());
}
