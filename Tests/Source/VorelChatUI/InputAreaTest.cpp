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
		User.Frame();
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
	std::string Text() const { return ToUtf8(Box()->GetText().ToString()); }

	FFakeClient Client;
	TSharedRef<FChatPanelActions> Actions = MakeShared<FChatPanelActions>();
	TSharedRef<SNotification> Notification = SNew(SNotification);
	TSharedRef<SInputArea> Area = MakeArea(Actions);
	FUserDriver User{AtTop(Area), FVector2D(680.0, 400.0)};
	FLogCapture Log;
	std::string Sent;
};

} // namespace

TEST_F(InputArea, EnterSendsAndShiftEnterMakesALine)
{
	User.Type(TEXT("one"));
	User.Press(TEXT("Shift+Enter"));
	User.Type(TEXT("two"));
	EXPECT_EQ(TakeSent(), "");
	User.ClearFocus();
	EXPECT_EQ(TakeSent(), "");
	User.Click(TEXT("two"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeSent(), "[one\ntwo]");
	EXPECT_EQ(Text(), "");

	// An action that is not bound makes no difference to the box.
	Actions->OnSendMessage.Unbind();
	User.Type(TEXT("lost"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(Text(), "");
	EXPECT_EQ(TakeLog(Log), "");
}

TEST_F(InputArea, BlanksAloneAreSentAndNothingIsNot)
{
	User.Press(TEXT("Enter"));
	User.Click(TEXT("Send"));
	EXPECT_EQ(TakeSent(), "");
	User.Click(TEXT("Type your message here..."));
	User.Type(TEXT("  "));
	User.Click(TEXT("Send"));
	EXPECT_EQ(TakeSent(), "[  ]");
	EXPECT_EQ(Text(), "");
	EXPECT_EQ(TakeLog(Log), "");
}

TEST_F(InputArea, RefusesWhileAnAnswerIsUnderWay)
{
	Client.Chat->bIsProcessingRequest = true;
	User.Type(TEXT("early"));
	User.Press(TEXT("Enter"));
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

TEST_F(InputArea, AFailureGivesBackTheLastTextSentByEnter)
{
	User.Type(TEXT("by enter"));
	User.Press(TEXT("Enter"));
	Client.FailTurn(TEXT("x"));
	// Before the next frame the tree can be read too.
	EXPECT_TRUE(User.Tree().Contains(TEXT("focused \"by enter\""), ESearchCase::CaseSensitive)) << User.Tree();
	EXPECT_EQ(Text(), "by enter");
	// It is given back once.
	Box()->SetText(FText::FromString(TEXT("something else")));
	Client.FailTurn(TEXT("x"));
	EXPECT_EQ(Text(), "something else");
	User.Click(TEXT("Send"));
	Client.FailTurn(TEXT("x"));
	EXPECT_EQ(Text(), "");
}

TEST_F(InputArea, TheTextIsKeptAfterSuccessAndAfterARefusal)
{
	User.Type(TEXT("kept"));
	User.Press(TEXT("Enter"));
	Client.EndTurn(TEXT("answer"));
	User.Type(TEXT("by button"));
	User.Click(TEXT("Send"));
	Client.FailTurn(TEXT("x"));
	EXPECT_EQ(Text(), "kept");

	Client.Chat->bIsProcessingRequest = true;
	User.Click(TEXT("kept"));
	User.Press(TEXT("End"));
	User.Type(TEXT("!"));
	User.Press(TEXT("Enter"));
	Box()->SetText(FText::GetEmpty());
	Client.FailTurn(TEXT("x"));
	EXPECT_EQ(Text(), "kept!");

	// Enter in an empty box forgets it.
	User.Press(TEXT("Ctrl+A"));
	User.Press(TEXT("Delete"));
	User.Press(TEXT("Enter"));
	Client.FailTurn(TEXT("x"));
	EXPECT_EQ(Text(), "");
}

TEST_F(InputArea, GrowsWithItsTextFrom40To120Units)
{
	const auto Height = [this]
	{
		User.Frame();
		return FindOne(Area, TEXT("SBox"))->GetCachedGeometry().GetLocalSize().Y;
	};
	EXPECT_EQ(Height(), 40.0);
	for (int Line = 0; Line < 5; ++Line)
	{
		User.Press(TEXT("Shift+Enter"));
	}
	EXPECT_GT(Height(), 40.0);
	for (int Line = 0; Line < 20; ++Line)
	{
		User.Press(TEXT("Shift+Enter"));
	}
	EXPECT_EQ(Height(), 120.0);
	EXPECT_EQ(FindOne(Area, TEXT("SImage"))->GetCachedGeometry().GetLocalSize(), FVector2D(680.0, 140.0));
}

TEST_F(InputArea, WithoutCreditsAnAgentModeSwitchesTheInputOff)
{
	struct FRow
	{
		const TCHAR* UserName;
		int32 Credits;
		FString ModeName;
		bool bOn;
	};
	const FString Agent = UChatService::DefaultAgentChatModeName;
	const FRow Rows[] = {{TEXT("Ann"), 0, Agent, false}, {TEXT("Ann"), -1, Agent, false}, {TEXT("Ann"), 1, Agent, true},
		{TEXT(""), 0, Agent, true}, {TEXT("Ann"), 0, TEXT("Ask"), true}, {TEXT("Ann"), 0, FFakeClient::ReagentMode, true}};
	for (const FRow& Row : Rows)
	{
		Client.Chat->CurrentChatModeName = Row.ModeName;
		Client.SetUserData(Row.UserName, Row.Credits);
		EXPECT_EQ(Area->IsInputEnabled(), Row.bOn) << ToUtf8(Row.ModeName) << " " << Row.Credits;
		EXPECT_EQ(Box()->GetVisibility() == EVisibility::Visible, Row.bOn);
		EXPECT_EQ(Box()->IsEnabled(), Row.bOn);
	}
}

TEST_F(InputArea, TheNoticeLeadsToTheBillingPageUntilTheModeChanges)
{
	Client.Chat->CurrentChatModeName = UChatService::DefaultAgentChatModeName;
	Client.SetUserData(TEXT("Ann"), 0);
	User.Frame();
	EXPECT_EQ(ReadTexts(Area), "You have no credits left for this Agent mode. | Get more credits");
	User.Click(TEXT("Get more credits"));
	EXPECT_EQ(ToUtf8(User.TakeLaunchedURLs()), ToUtf8(UVorelSettings::Get()->GetAppUrl()) + "/billing");
	Client.Chat->OnChatModeChanged.Broadcast(TEXT("Ask"));
	EXPECT_EQ(ReadTexts(Area), "");
	EXPECT_TRUE(Area->IsInputEnabled());
}
