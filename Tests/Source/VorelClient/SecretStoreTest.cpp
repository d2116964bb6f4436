// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QFileInfo>
#include <QLocalServer>
#include <QProcess>
#include <QStandardPaths>

#include "LoginFixture.h"

#include <filesystem>
#include <sys/stat.h>

namespace
{
constexpr std::string_view Marker = R"({"logins": {"local test": "secret store"}})";

// Runs one of the tests below in a program of its own, whose environment names its session.
void RunInSession(const char* Test, const QString& Program, const QStringList& Arguments, const QByteArray& BusAddress)
{
	const FTempFolder Home;
	QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
	for (const char* const Variable : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"})
	{
		Environment.insert(QString::fromLatin1(Variable), QString::fromUtf8(TCHAR_TO_UTF8(*Home.GetPath())));
	}
	Environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromLatin1(BusAddress));
	QProcess Session;
	Session.setProcessEnvironment(Environment);
	Session.setProcessChannelMode(QProcess::MergedChannels);
	Session.start(Program, QStringList(Arguments) << QStringLiteral("--gtest_also_run_disabled_tests")
												  << QStringLiteral("--gtest_filter=*DISABLED_") + QLatin1String(Test));
	EXPECT_TRUE(Session.waitForFinished(60'000));
	const QByteArray Output = Session.readAll();
	EXPECT_EQ(Session.exitCode(), 0) << Output.toStdString();
	EXPECT_TRUE(Output.contains("[  PASSED  ] 1 test.")) << Output.toStdString();
}

QString GetThisProgram()
{
	return QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
}
} // namespace

TEST(FSecretStoreTest, KeepsTheLogin)
{
	const QString Bus = QStandardPaths::findExecutable(QStringLiteral("dbus-run-session"));
	if (Bus.isEmpty() || QStandardPaths::findExecutable(QStringLiteral("gnome-keyring-daemon")).isEmpty())
	{
		GTEST_SKIP() << "There is no secret store to test with";
	}
	const QString Unlock =
		QStringLiteral("printf password | gnome-keyring-daemon --unlock --components=secrets >/dev/null && exec \"$0\" \"$@\"");
	RunInSession("WithASecretStore", Bus, {QStringLiteral("--"), QStringLiteral("sh"), QStringLiteral("-c"), Unlock, GetThisProgram()}, "");
}

TEST(FSecretStoreTest, WithoutOneTheLoginHoldsForThisRun)
{
	RunInSession("WithoutASecretStore", GetThisProgram(), {}, "unix:path=/nowhere");
	// One that never answers.
	const FTempFolder Folder;
	QLocalServer Silent;
	ASSERT_TRUE(Silent.listen(QString::fromUtf8(TCHAR_TO_UTF8(*Folder.GetPath(TEXT("bus"))))));
	RunInSession("WithoutASecretStore", GetThisProgram(), {}, "unix:path=" + Silent.fullServerName().toUtf8());
}

// These two are run by those above, each in its session.
TEST_F(FLoginTest, DISABLED_WithASecretStore)
{
	// What lies in a file moves as soon as there is something new.
	LogIn(MakeTokens("1"));
	EndService();
	Options.bUseKeyring = true;
	Server.Then(ReplyMetadata(Server));
	Server.Then(ReplyJson("200 OK", MakeTokens("2")));
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
	Service().Logout();
	EXPECT_TEXT(WaitForEnd(), TEXT("You are signed out."));
	ASSERT_TRUE(PumpUntil([this] { return Server.GetExchanges().size() == 6; }));
	EXPECT_TRUE(Server.GetExchanges()[5].Body.contains("token=refresh-2&"));
	EXPECT_TRUE(PumpUntil([this] { return Folder.Read(TEXT("login.json")).find("signed out") == std::string::npos; }));
	EndService();
	Folder.Write(TEXT("login.json"), Marker);
	ASSERT_EQ(::chmod(TCHAR_TO_UTF8(*Folder.GetPath(TEXT("login.json"))), 0600), 0);
	EXPECT_TRUE(Service().IsAuthenticated());
	EXPECT_TEXT(WaitForEnd(), TEXT("Your sign-in is no longer stored on this computer. Click \"Log in\" to sign in again."));
}

TEST_F(FLoginTest, DISABLED_WithoutASecretStore)
{
	Options.Limits.SecretStore = 0.5;
	Options.bUseKeyring = true;
	Options.bAllowTokenFile = false;
	Folder.Write(TEXT("login.json"), Marker);
	ASSERT_EQ(::chmod(TCHAR_TO_UTF8(*Folder.GetPath(TEXT("login.json"))), 0600), 0);
	EXPECT_TRUE(Service().IsAuthenticated());
	EXPECT_TEXT(WaitForEnd(), TEXT("Your sign-in can't be read from this desktop's password store. Unlock it and start Vorel AI anew, or "
								   "click \"Log in\"."));
	EXPECT_FALSE(Service().IsAuthenticated());
	LogIn(MakeTokens("1"));
	const TCHAR* const Notice = TEXT("You stay signed in until Vorel AI is closed: this desktop has no password store that it could use. "
									 "The setting allowTokenFile lets it use a file instead.");
	EXPECT_TRUE(PumpUntil([this, Notice] { return Log.Has("LogVorelAccount", ELogVerbosity::Display, Notice); })) << Log.Dump();
	Server.Then(ReplyJson("200 OK", MakeTokens("2")));
	EXPECT_TEXT(GetToken(TEXT("access-1")), TEXT("access-2"));
	EXPECT_EQ(Log.CountAtLevel("LogVorelAccount", ELogVerbosity::Display), 1) << Log.Dump();
	EndService();
	EXPECT_FALSE(Service().IsAuthenticated());
}
