// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>
#include <QLocalServer>
#include <QProcess>

#include "LoginFixture.h"

#include "Http/JsonText.h"
#include "Http/QtText.h"
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>

namespace
{
constexpr const char* InSession = "VOREL_TEST_SESSION";

// Each test runs anew in a program of its own, whose environment names the session to look for a store in.
class FSecretStoreTest : public FLoginTest
{
protected:
	static bool IsInSession() { return std::getenv(InSession) != nullptr; }

	static void RunInSession(const QByteArray& BusAddress, QStringList Command = {})
	{
		const FTempFolder Home;
		QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
		for (const char* const Variable : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"})
		{
			Environment.insert(QString::fromLatin1(Variable), ToQString(Home.GetPath()));
		}
		Environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromLatin1(BusAddress));
		Environment.insert(QString::fromLatin1(InSession), QStringLiteral("1"));
		const char* const Test = testing::UnitTest::GetInstance()->current_test_info()->name();
		Command << QCoreApplication::applicationFilePath() << QStringLiteral("--gtest_filter=FSecretStoreTest.") + QLatin1String(Test);
		QProcess Session;
		Session.setProcessEnvironment(Environment);
		Session.setProcessChannelMode(QProcess::MergedChannels);
		Session.start(Command.takeFirst(), Command);
		EXPECT_TRUE(Session.waitForFinished(60'000)) << Session.errorString().toStdString();
		const QByteArray Output = Session.readAll();
		EXPECT_TRUE(Session.exitCode() == 0 && Output.contains("[  PASSED  ] 1 test.")) << Output.toStdString();
	}

	static void RunWithKeyring()
	{
		RunInSession("",
			{QStringLiteral("dbus-run-session"), QStringLiteral("--"), QStringLiteral("sh"), QStringLiteral("-c"),
				QStringLiteral("printf password | gnome-keyring-daemon --unlock --components=secrets >/dev/null && exec \"$0\" \"$@\"")});
	}

	void NoteThatTheStoreHasTokens()
	{
		Folder.Write(TEXT("login.json"), R"({"logins": {"local test": "secret store"}})");
		ASSERT_EQ(::chmod(TCHAR_TO_UTF8(*Folder.GetPath(TEXT("login.json"))), 0600), 0);
	}
};
} // namespace

TEST_F(FSecretStoreTest, KeepsTheLogin)
{
	if (!IsInSession())
	{
		RunWithKeyring();
		return;
	}
	// What lies in a file moves as soon as there is something new.
	LogIn(MakeTokens("1"));
	EndService();
	Options.bUseKeyring = true;
	Server.Then({ReplyMetadata(Server), ReplyJson("200 OK", MakeTokens("2"))});
	EXPECT_TEXT(GetToken(TEXT("access-1")), TEXT("access-2"));
	EXPECT_TRUE(std::filesystem::is_empty(TCHAR_TO_UTF8(*Folder.GetPath(TEXT("tokens")))));
	EndService();
	Options.bAllowTokenFile = false;
	EXPECT_TRUE(Service().IsAuthenticated());
	EXPECT_TEXT(GetToken(), TEXT("access-2"));
	EXPECT_EQ(Folder.Read(TEXT("login.json")).find("access"), std::string::npos);

	// A store that was unlocked after the limit.
	EndService();
	Options.Limits.SecretStore = 0.0;
	EXPECT_TRUE(Service().IsAuthenticated());
	EXPECT_TRUE(WaitForEnd().StartsWith(TEXT("Your sign-in can't be read")));
	EXPECT_TRUE(PumpUntil([this] { return Service().IsAuthenticated(); }));
	EXPECT_TEXT(WaitForEnd(), TEXT("You are signed in."));
	EXPECT_TEXT(GetToken(), TEXT("access-2"));
	Options.Limits.SecretStore = 5.0;

	// Signed out before the store has answered: what is read then is revoked and cleared all the same.
	EndService();
	Server.Then(ReplyMetadata(Server));
	LogOut();
	ASSERT_TRUE(PumpUntil([this] { return Server.GetExchanges().size() == 6; }));
	EXPECT_TRUE(Server.GetExchanges()[5].Body.contains("token=refresh-2&"));
	EXPECT_TRUE(PumpUntil([this] { return !IsNoted("signed out"); }));
	EndService();
	NoteThatTheStoreHasTokens();
	EXPECT_TRUE(Service().IsAuthenticated());
	EXPECT_TRUE(WaitForEnd().StartsWith(TEXT("Your sign-in can't be read")));
}

TEST_F(FSecretStoreTest, ALockedOneCostsNoLogin)
{
	if (!IsInSession())
	{
		RunWithKeyring();
		return;
	}
	Options.bUseKeyring = true;
	Options.bAllowTokenFile = false;
	LogIn(MakeTokens("1"));
	const char* const Lock = "--print-reply --dest=org.freedesktop.secrets /org/freedesktop/secrets org.freedesktop.Secret.Service.Lock "
							 "array:objpath:/org/freedesktop/secrets/collection/login";
	ASSERT_EQ(QProcess::execute(QStringLiteral("dbus-send"), QString::fromLatin1(Lock).split(QLatin1Char(' '))), 0);

	// Nothing is renewed that could not be kept.
	EXPECT_TEXT(GetToken(TEXT("access-1")), TEXT("none"));
	EXPECT_TRUE(Log.Has("LogVorelAccount", ELogVerbosity::Warning,
		TEXT("Your sign-in could not be renewed yet. It can't be read from this desktop's password store. Unlock it and try again.")));
	EXPECT_TRUE(Service().IsAuthenticated());
	EndService();
	Log.Clear();
	EXPECT_TRUE(Service().IsAuthenticated());
	EXPECT_TRUE(WaitForEnd().StartsWith(TEXT("Your sign-in can't be read")));
	EXPECT_EQ(Server.GetExchanges().size(), 2);
	EXPECT_TRUE(IsNoted("\"secret store\""));

	// What can't be cleared is cleared another time.
	EndService();
	LogOut();
	EXPECT_TRUE(PumpUntil([this] { return ToUtf8(Log.Dump()).find("The secret store failed") != std::string::npos; }));
	EXPECT_TRUE(IsNoted("signed out"));
}

TEST_F(FSecretStoreTest, WithoutOneTheLoginHoldsForThisRun)
{
	if (!IsInSession())
	{
		RunInSession("unix:path=/nowhere");
		// One that never answers.
		QLocalServer Silent;
		ASSERT_TRUE(Silent.listen(ToQString(Folder.GetPath(TEXT("bus")))));
		RunInSession("unix:path=" + Silent.fullServerName().toUtf8());
		return;
	}
	Options.Limits.SecretStore = 0.5;
	Options.bUseKeyring = true;
	// What a logout left in the file is revoked and forgotten at the next start, whatever the store says.
	LogIn(MakeTokens("1"));
	Service().Logout();
	EndService();
	Server.Then(ReplyMetadata(Server));
	EXPECT_FALSE(Service().IsAuthenticated());
	EXPECT_TRUE(PumpUntil([this] { return Server.GetExchanges().last().Body.contains("token=refresh-1&") && !IsNoted("signed out"); }));
	EndService();
	Log.Clear();

	Options.bAllowTokenFile = false;
	NoteThatTheStoreHasTokens();
	EXPECT_TRUE(Service().IsAuthenticated());
	EXPECT_TEXT(WaitForEnd(), TEXT("Your sign-in can't be read from this desktop's password store. Unlock it and start Vorel AI anew, or "
								   "click \"Log in\"."));
	EXPECT_FALSE(Service().IsAuthenticated());
	LogInUnstored(MakeTokens("1"));
	const TCHAR* const Notice = TEXT("You stay signed in until Vorel AI is closed: this desktop has no password store that it could use. "
									 "The setting allowTokenFile lets it use a file instead.");
	EXPECT_TRUE(PumpUntil([this, Notice] { return Log.Has("LogVorelAccount", ELogVerbosity::Display, Notice); })) << Log.Dump();
	EXPECT_FALSE(IsSignedInAtNextStart());
}
