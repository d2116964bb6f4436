// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatPanel.h"
#include "Support/FakeClient/FakeClient.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/SWindow.h"
#include <gtest/gtest.h>

namespace
{

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

	std::string Toast() const { return ReadTexts(FindOne(Panel, TEXT("SNotification"))); }
	std::string List() const { return ReadList(Panel); }
	std::string TakeCalls() const { return ToUtf8(Client.Calls->Take()); }

	// What the bottom bar says of the mode, in brackets while it is locked.
	std::string Mode()
	{
		const TSharedRef<SWidget> Picker = FindOne(Panel, TEXT("SComboBox"), 1);
		return Picker->IsEnabled() ? ReadTexts(Picker) : "[" + ReadTexts(Picker) + "]";
	}

	void PickMode(const TCHAR* ModeName)
	{
		User.Frame();
		User.ClickAt(FindOne(Panel, TEXT("SComboBox"), 1)->GetCachedGeometry().LocalToAbsolute(FVector2D(8.0, 8.0)));
		User.Click(ModeName);
	}

	void PickConversation(const TCHAR* Title)
	{
		User.Click(TEXT("History"));
		User.Click(Title);
	}

	FFakeClient Client;
	FLogCapture Log;
	TSharedRef<SChatPanel> Panel = MakePanel();
	FUserDriver User{Panel, FVector2D(1000.0, 800.0)};
};

const char* const OneHistory = "Log: Refreshing chat history widget with 1 histories\n";
const char* const TwoHistories = "Log: Refreshing chat history widget with 2 histories\n";

} // namespace

TEST_F(ChatPanel, AMessageGoesFromTheBoxToTheService)
{
	Client.Calls->Allow(TEXT("SendMessage"), [this](const FString& Text) { Client.StartTurn(Text); });
	User.Click(TEXT("Type your message here..."));
	User.Play(TEXT("'How?' Enter"));
	EXPECT_EQ(TakeCalls(), "CheckForUpdates() SendMessage(How?)");
	EXPECT_EQ(List(), "You: How? | (thinking)");
	Client.DeliverChunk(TEXT("**So"));
	Client.DeliverChunk(TEXT("**."));
	EXPECT_EQ(List(), "You: How? | Vorel: So.");
	User.Play(TEXT("'again' Enter"));
	EXPECT_EQ(Toast(), "Please wait | AI is still responding. Let it finish before sending a new message.");
	Client.EndTurn(TEXT("**So**."));
	EXPECT_EQ(List(), "You: How? | Vorel: So.");
	Client.FailTurn(TEXT("It broke."));
	EXPECT_EQ(Toast(), "Unexpected error! | It broke.");
}

TEST_F(ChatPanel, RefusesWhileTheAssistantAnswers)
{
	Client.MakeHistory(TEXT("other"));
	Client.Chat->OnChatHistoryChanged.Broadcast();
	Client.StartTurn(TEXT("q"));
	TakeCalls();
	User.Click(TEXT("NewChat"));
	EXPECT_EQ(Toast(), "Please wait | AI is still responding. Let it finish before starting a new chat.");
	PickConversation(TEXT("other"));
	EXPECT_EQ(Toast(), "Please wait | AI is still responding. Let it finish before switching conversation.");
	PickMode(FFakeClient::AutopilotMode);
	EXPECT_EQ(Toast(), "Please wait | AI is still responding. Let it finish before switching to Agent mode.");
	EXPECT_EQ(TakeCalls(), "");

	// A mode that is no agent and a deletion go through.
	Client.Calls->Allow(TEXT("SetCurrentChatMode"));
	Client.Calls->Allow(TEXT("DeleteChatHistory"));
	PickMode(FFakeClient::ReagentMode);
	User.Click(TEXT("History"));
	User.Click(TEXT("Delete"));
	EXPECT_EQ(TakeCalls(), "SetCurrentChatMode(Reagent Lab) DeleteChatHistory(first)");
}

TEST_F(ChatPanel, ANewChatOpensInTheDefaultAgentMode)
{
	Client.AddMessage(EChatRole::User, TEXT("old"));
	Client.Calls->Allow(TEXT("CreateNewConversation"), [this](const FString&) { Client.OpenHistory(TEXT("second")); });
	TakeCalls();
	TakeLog(Log);
	User.Click(TEXT("NewChat"));
	EXPECT_EQ(TakeCalls(), "CreateNewConversation(Default Agent)");
	EXPECT_EQ(TakeLog(Log), std::string("Log: New chat requested\n") + TwoHistories);
	EXPECT_EQ(List(), "");
	Client.Calls->Allow(TEXT("LoadConversation"));
	PickConversation(TEXT("second"));
	EXPECT_EQ(TakeCalls(), "LoadConversation(second)");
}

TEST_F(ChatPanel, AnAgentModeOpensANewConversation)
{
	TakeCalls();
	TakeLog(Log);
	Client.Calls->Allow(TEXT("CreateNewConversation"),
		[this](const FString& ModeName)
		{
			Client.OpenHistory(TEXT("agent"));
			Client.Chat->CurrentChatModeName = ModeName;
			Client.Chat->OnChatModeChanged.Broadcast(ModeName);
			Client.Chat->OnChatHistoryChanged.Broadcast();
		});
	PickMode(FFakeClient::AutopilotMode);
	EXPECT_EQ(TakeCalls(), "CreateNewConversation(Autopilot)");
	EXPECT_EQ(TakeLog(Log), std::string("Log: Chat mode changed to: Autopilot\n"
										"Log: called HandleChatModeChangedInternal with mode: Autopilot\n") +
								TwoHistories);
	EXPECT_EQ(Toast(), "You're now in Agent mode | Your previous conversation is safe in chat history.");
	EXPECT_EQ(Mode(), "Autopilot");
	Client.AddMessage(EChatRole::User, TEXT("q"));
	EXPECT_EQ(Mode(), "[Autopilot]") << "it has begun";
	Client.Chat->CurrentConversation = nullptr;
	Client.Chat->OnChatModeChanged.Broadcast(TEXT("Autopilot"));
	EXPECT_EQ(Mode(), "Autopilot") << "none is as good as an empty one";
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

TEST_F(ChatPanel, PassesUserDataOnAndTellsOfItsFailure)
{
	Client.SetUserData(TEXT("Kim"), 1500);
	User.AdvanceTime(0.0f);
	EXPECT_TRUE(User.Sees(TEXT("Credits: 1,500")));
	EXPECT_TRUE(User.Sees(TEXT("Licenced to: Kim")));
	EXPECT_NE(ReadTexts(MakePanel()).find("Licenced to: Kim"), std::string::npos) << "a new panel knows at once";
	Client.SetUserData(TEXT("Kim"), 1500, false);
	User.AdvanceTime(0.0f);
	EXPECT_EQ(Toast(), "Unexpected Error! | Failed to retrieve user information");
	EXPECT_EQ(ReadTexts(FindOne(Panel, TEXT("SBottomBar"))).find("Kim"), std::string::npos);
	EXPECT_TRUE(User.Sees(TEXT("Credits: 0")));
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
	User.Click(TEXT("Download"));
	EXPECT_TRUE(User.TakeLaunchedURLs().EndsWith(TEXT("/plugin")));

	TakeCalls();
	Client.Calls->Allow(TEXT("Logout"));
	User.Click(TEXT("Logout"));
	EXPECT_EQ(TakeCalls(), "Logout() Logout()") << "by the bar and by the panel";
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
	Client.SetUserData(TEXT("Kim"), 1, false);
	User.Click(TEXT("NewChat"));
	EXPECT_EQ(TakeLog(Log), "");
	EXPECT_EQ(Toast(), "");

	// As a panel does that has gone.
	const TWeakPtr<SChatPanel> Other = TSharedPtr<SChatPanel>(MakePanel());
	EXPECT_FALSE(Other.IsValid());
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	Client.Chat->OnChatHistoryChanged.Broadcast();
}

TEST_F(ChatPanel, TheColumnIs700WideAndTheToastPushesItDown)
{
	Client.AddMessage(EChatRole::Assistant, TEXT("Hello"));
	User.Frame();
	const auto ExpectPlaces = [this](std::initializer_list<std::pair<const TCHAR*, const char*>> Places)
	{
		for (const auto& [TypeName, Place] : Places)
		{
			EXPECT_EQ(PlaceOf(FindOne(Panel, TypeName)), Place);
		}
	};
	// 60 for the input area, whose box is 40 high, 40 for the bar below it, 56.25 for the bar above; the rest is the view's.
	ExpectPlaces({{TEXT("STopBar"), "0,0 1000x56.25"}, {TEXT("SBottomBar"), "160,760 680x40"}, {TEXT("SInputArea"), "160,700 680x60"},
		{TEXT("SChatView"), "160,56.25 680x643.75"}, {TEXT("SScrollBox"), "170,56.25 660x643.75"}});
	EXPECT_TRUE(PlaceOf(FindOne(Panel, TEXT("SChatItem"))).starts_with("170,66.25 660x"));

	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	User.Frame();
	ExpectPlaces({{TEXT("SNotification"), "0,56.25 1000x45"}, {TEXT("SChatView"), "160,101.25 680x598.75"}});
}
