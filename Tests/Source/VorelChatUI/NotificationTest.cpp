// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SNotification.h"
#include "Editor.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include <gtest/gtest.h>

namespace
{

class Notification : public testing::Test
{
protected:
	bool IsShown() const { return Toast->GetVisibility() == EVisibility::Visible; }

	// The brush names of background and icon.
	std::string Look() const
	{
		const TSharedRef<SBorder> Border = StaticCastSharedRef<SBorder>(FindOne(Toast, TEXT("SBorder")));
		const TSharedRef<SImage> Icon = StaticCastSharedRef<SImage>(FindOne(Border, TEXT("SImage")));
		const ISlateStyle& Style = FVorelAIStyle::Get();
		return ToUtf8(Style.FindBrushName(Border->GetBorderImage()).ToString()) + " " +
			   ToUtf8(Style.FindBrushName(Icon->GetImage()).ToString());
	}

	TSharedRef<SNotification> Toast = SNew(SNotification);
	FUserDriver User{Toast, FVector2D(900.0, 300.0)};
};

} // namespace

TEST_F(Notification, EachPushSetsTextsColorAndIcon)
{
	EXPECT_FALSE(IsShown());
	EXPECT_EQ(Look(), "VorelAI.Background.Transparent None");
	Toast->PushError(TEXT("Broken"), TEXT("It fell"));
	EXPECT_TRUE(IsShown());
	EXPECT_EQ(ReadTexts(Toast) + " " + Look(), "Broken | It fell VorelAI.Background.Error VorelAI.Icon.Error");
	Toast->PushInfo(TEXT("News"), TEXT("All well"));
	EXPECT_EQ(ReadTexts(Toast) + " " + Look(), "News | All well VorelAI.Background.Info VorelAI.Icon.Info");
	Toast->PushSuccess(TEXT("Done"), TEXT("At last"));
	EXPECT_EQ(ReadTexts(Toast) + " " + Look(), "Done | At last VorelAI.Background.Success VorelAI.Icon.Success");
	Toast->PushError(TEXT("a"), TEXT("b"), TEXT("https://c.example"), TEXT("d"));
	EXPECT_EQ(ReadTexts(Toast), "a | b | d");
	Toast->PushSuccess(TEXT("e"), TEXT("f"), TEXT("https://g.example"), TEXT("h"));
	EXPECT_EQ(ReadTexts(Toast), "e | f | h");
}

TEST_F(Notification, HidesTenSecondsAfterTheLastPushAlsoOneAfterItWasClosed)
{
	Toast->PushInfo(TEXT("first"), TEXT("1"));
	User.AdvanceTime(9.0f);
	Toast->PushError(TEXT("second"), TEXT("2"));
	User.AdvanceTime(9.0f);
	EXPECT_EQ(ReadTexts(Toast), "second | 2");
	User.Click(TEXT("X"));
	EXPECT_FALSE(IsShown());
	Toast->PushInfo(TEXT("third"), TEXT("3"));
	User.AdvanceTime(9.9f);
	EXPECT_TRUE(IsShown());
	User.AdvanceTime(0.2f);
	EXPECT_FALSE(IsShown());
}

TEST_F(Notification, TheButtonOpensItsPageAndLeavesTheBannerAndItsTimer)
{
	Toast->PushInfo(TEXT("New"), TEXT("version"), TEXT("https://vorel.example/plugin"), TEXT("Download"));
	User.AdvanceTime(5.0f);
	User.Click(TEXT("Download"));
	EXPECT_EQ(ToUtf8(User.TakeLaunchedURLs()), "https://vorel.example/plugin");
	EXPECT_TRUE(IsShown());
	User.AdvanceTime(5.1f);
	EXPECT_FALSE(IsShown());

	// A push without an address collapses the button only; the old binding is still behind it.
	Toast->PushInfo(TEXT("c"), TEXT("d"));
	EXPECT_EQ(ReadTexts(Toast), "c | d");
	FindOne(Toast, TEXT("SButton"))->SetVisibility(EVisibility::Visible);
	User.Click(TEXT("Download"));
	EXPECT_EQ(ToUtf8(User.TakeLaunchedURLs()), "https://vorel.example/plugin");
}

TEST_F(Notification, WithoutDelayOrEditorItStaysUntilItIsClosed)
{
	const TSharedRef<SNotification> Lasting = SNew(SNotification).AutoHideDelay(0.0f);
	Lasting->PushInfo(TEXT("a"), TEXT("b"));

	UEditorEngine* Editor = GEditor;
	GEditor = nullptr;
	Toast->PushInfo(TEXT("c"), TEXT("d"));
	GEditor = Editor;

	User.AdvanceTime(1000.0f);
	EXPECT_EQ(Lasting->GetVisibility(), EVisibility::Visible);
	EXPECT_TRUE(IsShown());
}
