// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/FakeClient/FakeClient.h"
#include "Support/UserDriver.h"
#include "View/SVorelAIView.h"
#include "Widgets.h"
#include <gtest/gtest.h>

namespace
{

class VorelAIView : public testing::Test
{
protected:
	TSharedRef<SVorelAIView> MakeView() const
	{
		return SNew(SVorelAIView)
			.AuthService(Client.Auth)
			.ChatService(Client.Chat)
			.UserDataService(Client.UserData)
			.UpdateService(Client.Update);
	}

	static bool ShowsChat(const TSharedRef<SWidget>& View)
	{
		return FindOne(View, TEXT("SChatPanel"))->GetVisibility() == EVisibility::Visible;
	}

	std::string TakeCalls() const { return ToUtf8(Client.Calls->Take()); }

	FFakeClient Client;
};

} // namespace

TEST_F(VorelAIView, ShowsTheChatAndFetchesUserDataWhileSignedIn)
{
	FLogCapture Log;
	const TSharedRef<SVorelAIView> View = MakeView();
	EXPECT_TRUE(ShowsChat(View));
	EXPECT_EQ(TakeCalls(), "CheckForUpdates() GetUserData()");
	EXPECT_TRUE(TakeLog(Log).ends_with("Log: Updating view state: UserDataService is valid\n"));
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	EXPECT_TRUE(ShowsChat(View));
	EXPECT_EQ(TakeCalls(), "GetUserData()");
}

TEST_F(VorelAIView, TheChatSurvivesALogout)
{
	Client.Auth->bIsAuthenticated = false;
	const TSharedRef<SVorelAIView> View = MakeView();
	EXPECT_FALSE(ShowsChat(View));
	EXPECT_EQ(TakeCalls(), "CheckForUpdates()");

	Client.Auth->bIsAuthenticated = true;
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	FUserDriver User(View, FVector2D(1000.0, 800.0));
	User.Click(TEXT("Type your message here..."));
	User.Type(TEXT("draft"));
	Client.AddMessage(EChatRole::Assistant, TEXT("Hi"));

	Client.Auth->bIsAuthenticated = false;
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	EXPECT_FALSE(ShowsChat(View));
	EXPECT_EQ(ReadTexts(View), "");
	Client.Auth->bIsAuthenticated = true;
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	EXPECT_EQ(ReadList(View), "Vorel: Hi");
	EXPECT_NE(ReadTexts(View).find("draft"), std::string::npos);
}

TEST_F(VorelAIView, WithoutAuthServiceItStaysSignedOut)
{
	Client.Auth = nullptr;
	FLogCapture Log;
	const TSharedRef<SVorelAIView> View = MakeView();
	EXPECT_FALSE(ShowsChat(View));
	EXPECT_TRUE(TakeLog(Log).ends_with("Warning: Can't bind to authentication state changes because AuthService is not valid\n"));
}
