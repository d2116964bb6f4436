// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PageForm.h"
#include "Play/PlayBrowser.h"
#include "Play/PlayStage.h"
#include "Programs/vorel/VorelProgramTest.h"

#include <future>
#include <httplib.h>

using PlaySteps = FVorelProgramTest;

TEST_F(PlaySteps, SayWhatAUserCouldNotDo)
{
	const std::pair<const char*, const TCHAR*> Rows[] = {
		{"click \"Nowhere\"", TEXT("\"Nowhere\": no widget shows it")},
		{"click \"LOG IN\"", TEXT("\"LOG IN\": no widget shows it")},
		{"click \"Log in\" 2", TEXT("\"Log in\": only 1 of them are shown")},
		{"resize 1000x300\nclick \"Privacy Policy\"", TEXT("\"Privacy Policy\": it is out of view")},
		{"focus \"Welcome to\"", TEXT("\"Welcome to\": no widget shows it")},
		{"type \"a\"", TEXT("no widget has the keyboard focus")},
		// Collapsed.
		{"expect text \"Type your message here...\"", TEXT("no widget shows \"Type your message here...\"")},
		{"expect no text \"come to\"", TEXT("a widget shows \"come to\"")},
		{"wait text \"Soon\" 0.01", TEXT("no widget shows \"Soon\" after 0.01 seconds")},
		{"click \"Log in\"\nwait idle 0.01", TEXT("something still moves after 0.01 seconds")},
		{"browse \"Top up\"", TEXT("nothing was sent to the browser")},
		{"click \"Privacy Policy\"\nbrowse \"Top up\"", TEXT("the page \"Privacy\" has no form with the button \"Top up\"")},
		{"screenshot \"/proc/none/a.png\"",
			TEXT("can't write /proc/none/a.png: Cannot open device for writing: No such file or directory")},
		{"tree \"/proc/none/a.txt\"", TEXT("can't write /proc/none/a.txt")},
	};
	for (const auto& [Steps, Problem] : Rows)
	{
		const FProgramOutcome Outcome = Play(std::string("open \"Vorel AI\"\n") + Steps + "\n");
		EXPECT_EQ(Outcome.ExitStatus, 1) << Steps;
		EXPECT_TRUE(Outcome.Errors.Contains(FString(TEXT(": ")) + Problem + TEXT("\n"))) << Steps << "\n" << Outcome.Errors;
	}
}

TEST_F(PlaySteps, AFailureTellsWhatWasOnScreen)
{
	EXPECT_TRUE(Play("click \"a\"").Errors.EndsWith(TEXT("a.play:1: there is nothing to act on\n  no tab is open\n")));
	// The port of a service that no machine offers any more.
	const FProgramOutcome Outcome = Play("open \"Vorel AI\"\nlogin \"Ada\"\n", {"--service=http://127.0.0.1:9"});
	EXPECT_EQ(Outcome.ExitStatus, 1);
	EXPECT_TRUE(
		Outcome.Errors.Contains(TEXT("a.play:2: the login came to nothing; why stands in the log\n  on screen was:\n    \"Welcome")))
		<< Outcome.Errors;
	EXPECT_FALSE(Outcome.Errors.Contains(TEXT("Licenced to"))) << Outcome.Errors;
}

// A service that lets the login wait before it fails.
TEST_F(PlaySteps, LoginTakesNoOtherPageForItsOwn)
{
	std::promise<void> OtherPage;
	std::future<void> Opened = OtherPage.get_future();
	httplib::Server Server;
	Server.Get("/privacy", [&](const httplib::Request&, httplib::Response&) { OtherPage.set_value(); });
	Server.Get("/.*",
		[&](const httplib::Request&, httplib::Response& Reply)
		{
			Opened.wait_for(std::chrono::seconds(1));
			Reply.status = 404;
		});
	const QString Service = QStringLiteral("--service=http://127.0.0.1:%1").arg(Server.bind_to_any_port("127.0.0.1"));
	std::thread Thread([&] { Server.listen_after_bind(); });
	for (const char* const Before : {"", "click \"Privacy Policy\"\n"})
	{
		const FProgramOutcome Outcome = Play(std::string("open \"Vorel AI\"\n") + Before + "click \"Log in\"\nlogin \"Ada\"\n", {Service});
		EXPECT_TRUE(Outcome.Errors.Contains(TEXT("the login came to nothing"))) << Outcome.Errors;
	}
	Server.stop();
	Thread.join();
}

namespace
{
class FStageWithoutTab final : public IPlayStage
{
public:
	bool InvokeMenuEntry(const FString&, FString&) override { return false; }
	QSlateWidget* GetTabContent() override { return nullptr; }
	QWidget& GetWindow() override { std::abort(); }
	void ResizeTabContent(const FContentSize&) override {}
	bool IsSignedIn() const override { return false; }
	bool IsRequestUnderWay() const override { return false; }
	bool IsPainted() const override { return true; }
	int64 GetNumFrames() const override { return 0; }
	TArray<FString> GetOpenedAddresses() const override { return {}; }
};
} // namespace

TEST(PlayBrowser, DoesNotWaitForeverForAPage)
{
	FStageWithoutTab Stage;
	EXPECT_TEXT(PlayBrowser::Press(TEXT("Top up"))(Stage, 30.0).Problem, TEXT("the browser is not done after 30 seconds"));
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
