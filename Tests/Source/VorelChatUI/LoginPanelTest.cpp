// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Authentication/SLoginPanel.h"
#include "Internationalization/Text.h"
#include "Support/FakeClient/FakeClient.h"
#include "Support/UserDriver.h"
#include "VorelUserSettings.h"
#include "Widgets.h"
#include "Widgets/Text/STextBlock.h"
#include <gtest/gtest.h>

namespace
{

class LoginPanel : public testing::Test
{
protected:
	LoginPanel() { Client.Calls->Allow(TEXT("StartLogin")); }
	~LoginPanel() override { UVorelUserSettings::Get()->SetDefaultAppUrl(FString()); }

	TSharedRef<SLoginPanel> MakePanel() const
	{
		UVorelUserSettings::Get()->SetDefaultAppUrl(TEXT("http://app.example:4711"));
		return SNew(SLoginPanel).AuthService(Client.Auth);
	}

	TSharedRef<SWidget> Toast() const { return FindOne(Panel, TEXT("SNotification")); }
	TSharedRef<SWidget> Interface() const { return FindOne(Panel, TEXT("SBorder"), 1); }
	TSharedRef<SWidget> LoginButton() const { return FindOne(Interface(), TEXT("SButton")); }
	TSharedRef<SWidget> Dots() const { return FindOne(Interface(), TEXT("SLoadingAnimation")); }

	// What stands in the login button.
	std::string Button() const { return ReadTexts(LoginButton()) + (Dots()->GetVisibility() == EVisibility::Visible ? "(dots)" : ""); }

	void ClickLogin() { User.ClickAt(LoginButton()->GetCachedGeometry().LocalToAbsolute(FVector2D(20.0, 20.0))); }
	std::string TakeCalls() const { return ToUtf8(Client.Calls->Take()); }

	FFakeClient Client;
	TSharedRef<SLoginPanel> Panel = MakePanel();
	FUserDriver User{Panel, FVector2D(1000.0, 800.0), 1.0f, EDriverFonts::Even};
};

} // namespace

TEST_F(LoginPanel, ShowsItsTextsUnderTheirKeys)
{
	std::string Texts;
	for (const TSharedRef<SWidget>& Block : FindAll(Interface(), TEXT("STextBlock")))
	{
		const FText& Text = StaticCastSharedRef<STextBlock>(Block)->GetText();
		EXPECT_EQ(ToUtf8(FTextInspector::GetNamespace(Text).GetValue()), "FVorelChatUI");
		Texts += ToUtf8(FTextInspector::GetKey(Text).GetValue()) + "=" + ToUtf8(Text.ToString()) + "\n";
	}
	EXPECT_EQ(Texts, "WelcomeTo=Welcome to\n"
					 "YourIntelligentCompanion=Your intelligent companion for Unreal Engine development. Streamline your workflow, enhance "
					 "productivity, and unleash creativity with AI-powered assistance.\n"
					 "LoginButtonText=Log in\n"
					 "ByLoggingInYouAgreeToOur=By logging in, you agree to our\n"
					 "TermsOfService=Terms of Service\n"
					 "And= and \n"
					 "PrivacyPolicy=Privacy Policy\n"
					 "Dot=.\n"
					 "VorelAIPrprocessesYourData=Vorel AI processes your data to provide and improve our services.\n");
}

TEST_F(LoginPanel, StandsInTheMiddleAsFarAsThereIsRoom)
{
	EXPECT_EQ(ReadTexts(Toast()), "Welcome to Vorel AI! | Please log in to continue.");
	const TSharedRef<SWidget> Column = FindOne(Interface(), TEXT("SBox"));
	EXPECT_EQ(PlaceOf(Toast()), "0,0 1000x45");
	EXPECT_EQ(PlaceOf(Interface()), "0,45 1000x755");
	EXPECT_EQ(PlaceOf(Column), "290,189.25 420x466.5");
	EXPECT_EQ(PlaceOf(FindOne(Interface(), TEXT("SImage"))), "375,287.25 250x52.5");
	EXPECT_EQ(PlaceOf(LoginButton()), "425,503.75 150x50");

	// Without the banner the column stands in the middle of all.
	User.AdvanceTime(10.1f);
	EXPECT_EQ(ReadTexts(Toast()), "");
	EXPECT_EQ(PlaceOf(Column), "290,166.75 420x466.5");
	User.Resize(FVector2D(340.0, 800.0));
	EXPECT_EQ(PlaceOf(Column), "2,158.75 336x482.5");
	EXPECT_EQ(PlaceOf(LoginButton()), "95,489.25 150x50");
	User.Resize(FVector2D(104.0, 800.0));
	EXPECT_EQ(PlaceOf(Column), "2,125 100x550") << "no higher than that, however many lines the description has";
}

TEST_F(LoginPanel, DotsStandInForTheCaptionUntilTheStateChanges)
{
	EXPECT_EQ(Button(), "Log in");
	ClickLogin();
	EXPECT_EQ(Button(), "(dots)");
	EXPECT_EQ(TakeCalls(), "StartLogin()");
	User.AdvanceTime(0.2f);
	const TSharedRef<SWidget> Dot = FindOne(Dots(), TEXT("SImage"));
	EXPECT_EQ(PlaceOf(Dots()), "483.5,524.25 33x9");
	EXPECT_NEAR(Dot->GetRenderTransform()->GetTranslation().Y, 3.0 * std::sin(0.2 * 1.25 * 4.0 * 1.25), 1e-4);

	ClickLogin();
	EXPECT_EQ(Button(), "(dots)");
	EXPECT_EQ(TakeCalls(), "StartLogin()") << "nothing keeps an impatient user from starting anew";
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	EXPECT_EQ(Button(), "Log in");

	Client.Calls->Allow(TEXT("StartLogin"), [this](const FString&) { Client.Auth->OnAuthenticationStateChanged.Broadcast(); });
	ClickLogin();
	EXPECT_EQ(Button(), "Log in") << "a sign-in that ends at once leaves no dots";
}

TEST_F(LoginPanel, TheLinksLeadToTheAddressOfTheTimeOfBuilding)
{
	UVorelUserSettings::Get()->SetDefaultAppUrl(TEXT("http://other.example"));
	User.Click(TEXT("Terms of Service"));
	EXPECT_EQ(ToUtf8(User.TakeLaunchedURLs()), "http://app.example:4711/tos");
	User.Click(TEXT("Privacy Policy"));
	EXPECT_EQ(ToUtf8(User.TakeLaunchedURLs()), "http://app.example:4711/privacy");
}

TEST_F(LoginPanel, WithoutServiceAClickDoesNothing)
{
	FLogCapture Log;
	Client.Auth->RemoveFromRoot();
	Client.Auth->MarkAsGarbage();
	ClickLogin();
	EXPECT_EQ(Button(), "Log in");
	EXPECT_EQ(TakeCalls(), "");
	EXPECT_EQ(TakeLog(Log), "");
}
