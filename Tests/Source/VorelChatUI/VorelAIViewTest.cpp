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

	// The panels that are shown, in the order in which they lie on each other.
	static std::string Shown(const TSharedRef<SWidget>& View)
	{
		std::string Result;
		FChildren* Layers = FindOne(View, TEXT("SOverlay"))->GetChildren();
		for (int32 Index = 0; Index < Layers->Num(); ++Index)
		{
			const TSharedRef<SWidget> Layer = Layers->GetChildAt(Index);
			Result += (Layer->GetVisibility() == EVisibility::Visible ? "" : "-") + ToUtf8(Layer->GetTypeAsString()) + " ";
		}
		return Result;
	}

	static constexpr const char* Login = "SLoginPanel -SChatPanel ";
	static constexpr const char* Chat = "-SLoginPanel SChatPanel ";

	void SetSignedIn(bool bSignedIn)
	{
		Client.Auth->bIsAuthenticated = bSignedIn;
		Client.Auth->OnAuthenticationStateChanged.Broadcast();
	}

	std::string TakeCalls() const { return ToUtf8(Client.Calls->Take()); }

	FFakeClient Client;
};

} // namespace

TEST_F(VorelAIView, ShowsTheChatAndFetchesUserDataWhileSignedIn)
{
	FLogCapture Log;
	const TSharedRef<SVorelAIView> View = MakeView();
	EXPECT_EQ(Shown(View), Chat);
	EXPECT_EQ(TakeCalls(), "CheckForUpdates() GetUserData()");
	EXPECT_TRUE(TakeLog(Log).ends_with("Log: Updating view state: UserDataService is valid\n"));
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	EXPECT_EQ(Shown(View), Chat);
	EXPECT_EQ(TakeCalls(), "GetUserData()");
}

TEST_F(VorelAIView, ASignedOutUserLogsInAndTheChatSurvivesALogout)
{
	Client.Auth->bIsAuthenticated = false;
	const TSharedRef<SVorelAIView> View = MakeView();
	EXPECT_EQ(Shown(View), Login);
	EXPECT_EQ(TakeCalls(), "CheckForUpdates()");

	Client.Calls->Allow(TEXT("StartLogin"), [this](const FString&) { SetSignedIn(true); });
	FUserDriver User(View, FVector2D(1000.0, 800.0));
	User.Click(TEXT("Log in"));
	EXPECT_EQ(Shown(View), Chat);
	EXPECT_EQ(TakeCalls(), "StartLogin() GetUserData()");
	EXPECT_TRUE(User.Sees(TEXT("Welcome back!")));
	User.Click(TEXT("Type your message here..."));
	User.Type(TEXT("draft"));
	Client.AddMessage(EChatRole::Assistant, TEXT("Hi"));

	SetSignedIn(false);
	EXPECT_EQ(Shown(View), Login);
	EXPECT_TRUE(User.Sees(TEXT("Log in")));
	EXPECT_FALSE(User.Sees(TEXT("draft")));
	SetSignedIn(true);
	EXPECT_EQ(ReadList(View), "Vorel: Hi");
	EXPECT_NE(ReadTexts(View).find("draft"), std::string::npos);
}
