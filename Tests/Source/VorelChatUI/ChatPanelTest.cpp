// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatPanelActions.h"
#include "Chat/SChatPanel.h"
#include "Support/FakeClient/FakeClient.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include <gtest/gtest.h>

namespace
{

// What fires most of the actions is not on screen yet, so the tests take hold of the panel's record.
template <TSharedPtr<FChatPanelActions> SChatPanel::*Member>
struct TActionsOf
{
	friend FChatPanelActions& GetActions(const SChatPanel& Panel) { return *(Panel.*Member); }
};
FChatPanelActions& GetActions(const SChatPanel& Panel);
template struct TActionsOf<&SChatPanel::PanelActions>;

class ChatPanel : public testing::Test
{
protected:
	TSharedRef<SChatPanel> MakePanel() const
	{
		return SNew(SChatPanel)
			.ChatService(Client.Chat)
			.AuthService(Client.Auth)
			.UserDataService(Client.UserData)
			.UpdateService(Client.Update);
	}

	FChatPanelActions& Actions() const { return GetActions(*Panel); }
	std::string Toast() const { return ReadTexts(FindOne(Panel, TEXT("SNotification"))); }
	std::string List() const { return ReadList(Panel); }
	std::string TakeCalls() const { return ToUtf8(Client.Calls->Take()); }

	FFakeClient Client;
	FLogCapture Log;
	TSharedRef<SChatPanel> Panel = MakePanel();
};

const char* const OneHistory = "Log: Refreshing chat history widget with 1 histories\n";
const char* const TwoHistories = "Log: Refreshing chat history widget with 2 histories\n";

} // namespace

TEST_F(ChatPanel, BuildingItChecksForUpdatesOnce)
{
	EXPECT_EQ(TakeCalls(), "CheckForUpdates()");
	EXPECT_EQ(TakeLog(Log), OneHistory);
	EXPECT_EQ(Toast(), "");
}

TEST_F(ChatPanel, AMessageGoesFromTheBoxToTheService)
{
	Client.Calls->Allow(TEXT("SendMessage"), [this](const FString& Text) { Client.StartTurn(Text); });
	FUserDriver User(Panel, FVector2D(1000.0, 800.0));
	User.Click(TEXT("Type your message here..."));
	User.Type(TEXT("How?"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeCalls(), "CheckForUpdates() SendMessage(How?)");
	EXPECT_EQ(List(), "You: How? | (thinking)");
	Client.DeliverChunk(TEXT("**So"));
	Client.DeliverChunk(TEXT("**."));
	EXPECT_EQ(List(), "You: How? | Vorel: So.");
	Client.EndTurn(TEXT("**So**."));
	EXPECT_EQ(List(), "You: How? | Vorel: So.");
}

TEST_F(ChatPanel, RefusesWhileTheAssistantAnswers)
{
	Client.StartTurn(TEXT("q"));
	TakeCalls();
	TakeLog(Log);
	Actions().OnNewChatRequested.Execute();
	EXPECT_EQ(Toast(), "Please wait | AI is still responding. Let it finish before starting a new chat.");
	Actions().OnChatHistorySelected.Execute(Client.Chat->CurrentConversation);
	EXPECT_EQ(Toast(), "Please wait | AI is still responding. Let it finish before switching conversation.");
	Actions().OnChatModeSelected.Execute(FFakeClient::AutopilotMode);
	EXPECT_EQ(Toast(), "Please wait | AI is still responding. Let it finish before switching to Agent mode.");
	EXPECT_EQ(TakeCalls(), "");
	EXPECT_EQ(TakeLog(Log), "");

	// A mode that is no agent and a deletion go through.
	Client.Calls->Allow(TEXT("SetCurrentChatMode"));
	Client.Calls->Allow(TEXT("DeleteChatHistory"));
	Actions().OnChatModeSelected.Execute(FFakeClient::ReagentMode);
	Actions().OnChatDeleted.Execute(Client.Chat->CurrentConversation);
	EXPECT_EQ(TakeCalls(), "SetCurrentChatMode(Reagent Lab) DeleteChatHistory(first)");
}

TEST_F(ChatPanel, ShowsTheToastsOfItsChildren)
{
	Client.StartTurn(TEXT("q"));
	FUserDriver User(Panel, FVector2D(1000.0, 800.0));
	User.Click(TEXT("Type your message here..."));
	User.Type(TEXT("again"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(Toast(), "Please wait | AI is still responding. Let it finish before sending a new message.");
	Client.FailTurn(TEXT("It broke."));
	EXPECT_EQ(Toast(), "Unexpected error! | It broke.");
	EXPECT_EQ(TakeCalls(), "CheckForUpdates()");
}

TEST_F(ChatPanel, ANewChatOpensInTheDefaultAgentMode)
{
	Client.AddMessage(EChatRole::User, TEXT("old"));
	Client.Calls->Allow(TEXT("CreateNewConversation"), [this](const FString&) { Client.OpenHistory(TEXT("second")); });
	int32 NumAnnounced = 0;
	Actions().OnChatHistoriesRefreshed.BindLambda(
		[&NumAnnounced](const TArray<TObjectPtr<USerializableChatHistory>>& Histories) { NumAnnounced = Histories.Num(); });
	TakeCalls();
	TakeLog(Log);
	Actions().OnNewChatRequested.Execute();
	EXPECT_EQ(TakeCalls(), "CreateNewConversation(Default Agent)");
	EXPECT_EQ(TakeLog(Log), std::string("Log: New chat requested\n") + TwoHistories);
	EXPECT_EQ(List(), "");
	EXPECT_EQ(NumAnnounced, 2);
}

TEST_F(ChatPanel, SelectingAndDeletingNeedAValidConversation)
{
	TakeCalls();
	Client.Calls->Allow(TEXT("LoadConversation"));
	Client.Calls->Allow(TEXT("DeleteChatHistory"));
	const TObjectPtr<UFakeChatHistory> Other = Client.MakeHistory(TEXT("other"));
	Actions().OnChatHistorySelected.Execute(Other);
	Actions().OnChatDeleted.Execute(Other);
	EXPECT_EQ(TakeCalls(), "LoadConversation(other) DeleteChatHistory(other)");
	Other->MarkAsGarbage();
	Actions().OnChatHistorySelected.Execute(Other);
	Actions().OnChatDeleted.Execute(Other);
	Actions().OnChatHistorySelected.Execute(nullptr);
	Actions().OnChatDeleted.Execute(nullptr);
	EXPECT_EQ(TakeCalls(), "");
}

TEST_F(ChatPanel, AnAgentModeOpensANewConversation)
{
	TakeCalls();
	TakeLog(Log);
	Client.Calls->Allow(TEXT("CreateNewConversation"),
		[this](const FString& ModeName)
		{
			Client.OpenHistory(TEXT("agent"));
			Client.Chat->OnChatModeChanged.Broadcast(ModeName);
			Client.Chat->OnChatHistoryChanged.Broadcast();
		});
	Actions().OnChatModeSelected.Execute(FFakeClient::AutopilotMode);
	EXPECT_EQ(TakeCalls(), "CreateNewConversation(Autopilot)");
	EXPECT_EQ(TakeLog(Log), std::string("Log: called HandleChatModeChangedInternal with mode: Autopilot\n") + TwoHistories);
	EXPECT_EQ(Toast(), "You're now in Agent mode | Your previous conversation is safe in chat history.");
}

TEST_F(ChatPanel, AConversationBecomesAnAgentsByTheWordInItsModesName)
{
	const TObjectPtr<USerializableChatHistory> First = Client.Chat->CurrentConversation;
	Client.Chat->CurrentChatModeName = FFakeClient::ReagentMode;
	Client.Chat->OnChatHistoryChanged.Broadcast();
	EXPECT_FALSE(First->bIsAgentConversation);
	Client.AddMessage(EChatRole::User, TEXT("q"));
	EXPECT_TRUE(First->bIsAgentConversation);

	const TObjectPtr<USerializableChatHistory> Second = Client.OpenHistory(TEXT("second"));
	Client.Chat->CurrentChatModeName = FFakeClient::AutopilotMode;
	Client.AddMessage(EChatRole::User, TEXT("q"));
	EXPECT_FALSE(Second->bIsAgentConversation);

	Client.Chat->CurrentConversation = nullptr;
	Client.Chat->OnChatHistoryChanged.Broadcast();
}

TEST_F(ChatPanel, TellsOfLoginNewVersionAndNothingOnLogout)
{
	Client.Auth->bIsAuthenticated = false;
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	EXPECT_EQ(Toast(), "");
	Client.Auth->bIsAuthenticated = true;
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	EXPECT_EQ(Toast(), "Welcome back! | You've successfully logged in to Vorel.");

	Client.Update->OnLatestVersionReceived.Broadcast(TEXT("9.9"));
	EXPECT_EQ(Toast(), "New version available! | A new version of Vorel is available. | Download");
	FUserDriver User(Panel, FVector2D(1000.0, 800.0));
	User.Click(TEXT("Download"));
	EXPECT_TRUE(User.TakeLaunchedURLs().EndsWith(TEXT("/plugin")));

	TakeCalls();
	Client.Calls->Allow(TEXT("Logout"));
	Actions().OnLogoutClicked.Execute();
	EXPECT_EQ(TakeCalls(), "Logout()");
}

TEST_F(ChatPanel, AMissingServiceCostsItsEventsAndIsLogged)
{
	TakeLog(Log);
	Client.Auth = nullptr;
	Client.UserData->RemoveFromRoot();
	Client.UserData->MarkAsGarbage();
	Client.Update->RemoveFromRoot();
	Client.Update->MarkAsGarbage();
	const TSharedRef<SChatPanel> Other = MakePanel();
	EXPECT_EQ(TakeLog(Log), std::string("Error: AuthService is not valid in SChatPanel::RegisterEvents\n"
										"Error: UpdateService is not valid in SChatPanel::RegisterEvents\n") +
								OneHistory);
	Client.AddMessage(EChatRole::User, TEXT("q"));
	EXPECT_EQ(ReadList(Other), "You: q | (thinking)");
}

TEST_F(ChatPanel, UnregisterEventsUndoesRegisterEvents)
{
	Panel->UnregisterEvents();
	TakeLog(Log);
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	Client.Chat->OnChatHistoryChanged.Broadcast();
	Client.Chat->OnChatModeChanged.Broadcast(TEXT("Ask"));
	Client.Update->OnLatestVersionReceived.Broadcast(TEXT("9.9"));
	EXPECT_EQ(TakeLog(Log), "");
	EXPECT_EQ(Toast(), "");
	EXPECT_FALSE(Actions().OnSendMessage.IsBound());
	EXPECT_FALSE(Actions().OnNewChatRequested.IsBound());
}

TEST_F(ChatPanel, APanelThatHasGoneHearsNothing)
{
	TWeakPtr<SChatPanel> Weak;
	{
		const TSharedRef<SChatPanel> Other = MakePanel();
		Weak = Other;
	}
	EXPECT_FALSE(Weak.IsValid());
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	Client.Chat->OnChatHistoryChanged.Broadcast();
}

TEST_F(ChatPanel, TheColumnIs700WideAndTheToastPushesItDown)
{
	Client.AddMessage(EChatRole::Assistant, TEXT("Hello"));
	FUserDriver User(Panel, FVector2D(1000.0, 800.0));
	User.Frame();
	const auto Rect = [this](const TCHAR* TypeName, size_t Index = 0)
	{
		const FGeometry& Geometry = FindOne(Panel, TypeName, Index)->GetCachedGeometry();
		const FVector2D Position = Geometry.GetAbsolutePosition();
		return ToUtf8(
			FString::Printf(TEXT("%.0f,%.0f %.0fx%.0f"), Position.X, Position.Y, Geometry.GetLocalSize().X, Geometry.GetLocalSize().Y));
	};
	// 60 for the input area, whose box is 40 high; the rest is the view's.
	EXPECT_EQ(Rect(TEXT("SInputArea")), "160,740 680x60");
	EXPECT_EQ(Rect(TEXT("SChatView")), "160,0 680x740");
	EXPECT_EQ(Rect(TEXT("SScrollBox")), "170,0 660x740");
	EXPECT_TRUE(Rect(TEXT("SChatItem")).starts_with("170,10 660x"));

	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	User.Frame();
	EXPECT_EQ(Rect(TEXT("SNotification")), "0,0 1000x45");
	EXPECT_EQ(Rect(TEXT("SChatView")), "160,45 680x695");
}
