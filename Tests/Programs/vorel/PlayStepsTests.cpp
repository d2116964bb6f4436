// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PageForm.h"
#include "PlayScene.h"
#include "QtConversion.h"
#include "Widgets/Layout/SScrollBox.h"

namespace
{
// The sentence alone, without what was on screen.
FString GetFirstLine(const FString& Problem)
{
	FString First = Problem;
	Problem.Split(TEXT("\n"), &First, nullptr);
	return First;
}

#define EXPECT_PLAYS(Scene, Text) EXPECT_TEXT((Scene).Play(TEXT(Text)), TEXT(""))
#define EXPECT_FAILS(Scene, Text, Problem) EXPECT_TEXT(GetFirstLine((Scene).Play(TEXT(Text))), TEXT(Problem))
} // namespace

TEST(PlaySteps, ClicksAtTheEqualTextBeforeOneThatContainsIt)
{
	FPlayScene Scene;
	EXPECT_PLAYS(Scene, "click \"Press me\"");
	EXPECT_EQ(Scene.NumPressed, 1);
	EXPECT_PLAYS(Scene, "click \"Press m\"\nclick \"Press m\" 2");
	EXPECT_EQ(Scene.NumPressed, 2);
	EXPECT_EQ(Scene.NumPressedToo, 1);
	EXPECT_PLAYS(Scene, "click \"Tagged\"");
	EXPECT_EQ(Scene.NumTagged, 1);
}

TEST(PlaySteps, AClickNeedsItsMatchOnScreen)
{
	FPlayScene Scene;
	EXPECT_FAILS(Scene, "sleep 0\nclick \"Nowhere\"", "a.play:2: \"Nowhere\": no widget shows it");
	EXPECT_FAILS(Scene, "click \"title\"", "a.play:1: \"title\": no widget shows it");
	EXPECT_FAILS(Scene, "click \"Note\"", "a.play:1: \"Note\": no widget shows it");
	EXPECT_FAILS(Scene, "click \"Press me\" 3", "a.play:1: \"Press me\": only 2 of them are shown");
	EXPECT_FAILS(Scene, "click \"Row 99\"", "a.play:1: \"Row 99\": it is out of view");
	EXPECT_FAILS(Scene, "click \"Row\" 100", "a.play:1: \"Row\": it is out of view");
}

TEST(PlaySteps, AFailureTellsWhatWasOnScreen)
{
	FPlayScene Scene;
	const FString Problem = Scene.Play(TEXT("expect text \"Nowhere\""));
	EXPECT_TRUE(Problem.StartsWith(TEXT("a.play:1: no widget shows \"Nowhere\"\n  on screen was:\n    \"Title\"\n    \"Press me too\"\n")))
		<< Problem;
	EXPECT_FALSE(Problem.Contains(TEXT("Note"))) << Problem;
	Scene.bTabOpen = false;
	EXPECT_TEXT(Scene.Play(TEXT("click \"Title\"")), TEXT("a.play:1: there is nothing to act on\n  no tab is open"));
}

TEST(PlaySteps, ExpectationsLookBehindScrollingAndNotIntoCollapsedWidgets)
{
	FPlayScene Scene;
	EXPECT_PLAYS(Scene, "expect text \"Row 99\"\nexpect no text \"Note\"\nexpect text \"ess me t\"\nexpect no text \"Row 100\"");
	EXPECT_FAILS(Scene, "expect no text \"Title\"", "a.play:1: a widget shows \"Title\"");
	EXPECT_FAILS(Scene, "wait no text \"Title\" 0", "a.play:1: a widget shows \"Title\" after 0 seconds");
	EXPECT_FAILS(Scene, "wait text \"Soon\" 0.01", "a.play:1: no widget shows \"Soon\" after 0.01 seconds");
}

TEST(PlaySteps, TheWheelScrollsWhatItIsOver)
{
	FPlayScene Scene;
	EXPECT_PLAYS(Scene, "wheel \"Row 0\" -3");
	const float Down = Scene.Rows->GetScrollOffset();
	EXPECT_GT(Down, 0.0f);
	EXPECT_FAILS(Scene, "click \"Row 0\"", "a.play:1: \"Row 0\": it is out of view");
	EXPECT_PLAYS(Scene, "wheel \"Row\" 1");
	EXPECT_NEAR(Scene.Rows->GetScrollOffset(), Down * 2.0f / 3.0f, 0.5f);
}

TEST(PlaySteps, TypesIntoTheBoxThatAHintNames)
{
	FPlayScene Scene;
	EXPECT_FAILS(Scene, "type \"a\"", "a.play:1: no widget has the keyboard focus");
	EXPECT_PLAYS(Scene, "expect text \"Write here\"\nfocus \"Write here\"\ntype \"a \\\"b\\\"\\nc\\t\U0001F600\"\n"
						"expect text \"a \\\"b\\\"\\nc\\t\U0001F600\"\nexpect no text \"Write here\"");
	EXPECT_PLAYS(Scene, "press Ctrl+A\npress Backspace\nexpect text \"Write here\"");
	EXPECT_PLAYS(Scene, "type \"a\"\npress Enter\ntype \"b\"\npress Up\npress Home\ntype \"0\"\nexpect text \"0a\\nb\"");
	EXPECT_FAILS(Scene, "focus \"Title\"", "a.play:1: \"Title\": no widget shows it");
}

TEST(PlaySteps, IdleIsNoRequestAndNothingToPaint)
{
	FPlayScene Scene;
	EXPECT_PLAYS(Scene, "wait idle");
	Scene.bRequestUnderWay = true;
	EXPECT_FAILS(Scene, "wait idle 0.01", "a.play:1: a request is still under way after 0.01 seconds");
}

TEST(PlaySteps, AFileThatCantBeWrittenIsAFailure)
{
	FPlayScene Scene;
	EXPECT_FAILS(Scene, "screenshot \"/proc/none/a.png\"",
		"a.play:1: can't write /proc/none/a.png: Cannot open device for writing: No such file or directory");
	EXPECT_FAILS(Scene, "tree \"/proc/none/a.txt\"", "a.play:1: can't write /proc/none/a.txt");
}

TEST(PlaySteps, TheBrowserSaysWhatWentWrongInIt)
{
	FPlayScene Scene;
	EXPECT_PLAYS(Scene, "login \"Ada\"");
	EXPECT_FAILS(Scene, "browse \"Top up\"", "a.play:1: nothing was sent to the browser");
	Scene.bSignedIn = false;
	EXPECT_FAILS(Scene, "login \"Ada\"", "a.play:1: \"Log in\": no widget shows it");
	// The port of a service that no machine offers any more.
	Scene.OpenedAddresses = {TEXT("http://127.0.0.1:9/login")};
	EXPECT_FAILS(Scene, "login \"Ada\"", "a.play:1: the browser gets status 0: Connection refused");
	EXPECT_FAILS(Scene, "browse \"Top up\"", "a.play:1: the browser gets status 0: Connection refused");
}

TEST(PageForm, IsSentAsABrowserDoes)
{
	const QString Html = QStringLiteral("<h1>Sign <b>in</b></h1><form action=\"/other\"><input name=\"a\"><button>Other</button></form>\n"
										"<FORM method=\"post\" action=\"/login?x\"><input type=\"hidden\" name=\"state\"\n"
										"value=\"&lt;a&amp;b&gt; &quot;+&quot;\"><input id=\"n\" name=\"name\" value=\"Bob\" required>\n"
										"<button class=\"first\" name=\"action\" value=\"allow\">Go &amp; on</button>\n"
										"<button name=\"action\" value=\"cancel\">Cancel</button></FORM>");
	const QUrl Page(QStringLiteral("http://host:1/page?q"));
	const QMap<QString, QString> Entries{{QStringLiteral("name"), QStringLiteral("Ä=&")}};
	const std::tuple<const char*, const char*, const char*> Rows[] = {
		{"", "http://host:1/other", "a="},
		{"Go & on", "http://host:1/login?x", "state=%3Ca%26b%3E%20%22%2B%22&name=%C3%84%3D%26&action=allow"},
		{"Cancel", "http://host:1/login?x", "state=%3Ca%26b%3E%20%22%2B%22&name=%C3%84%3D%26&action=cancel"},
	};
	for (const auto& [Button, Action, Body] : Rows)
	{
		const TOptional<FPageForm> Form = FPageForm::Find(Page, Html, Entries, QString::fromUtf8(Button));
		ASSERT_TRUE(Form) << Button;
		EXPECT_EQ(Form->Action.toString().toStdString(), Action);
		EXPECT_EQ(Form->Body.toStdString(), Body);
	}
	EXPECT_FALSE(FPageForm::Find(Page, Html, Entries, QStringLiteral("Go")));
	EXPECT_TEXT(ReadPageMessage(Html), TEXT("Sign in"));
	EXPECT_TEXT(ReadPageMessage(Html + QStringLiteral("<p class=\"x\" role=\"alert\">Wrong <i>name</i>.</p>")), TEXT("Wrong name."));
}
