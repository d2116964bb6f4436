// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QRegularExpression>
#include <QUrl>

#include "LoginFixture.h"

#include "Http/Form.h"
#include "Http/JsonText.h"
#include "LocalService.h"
#include "Misc/Paths.h"

namespace
{
constexpr const TCHAR* SignedIn = TEXT("You are signed in.");
constexpr const TCHAR* Refused = TEXT("The service did not accept the sign-in. Click \"Log in\" to try again.");

// The login against the real service.
class FLoginServiceTest : public FLoginTest
{
protected:
	FLoginServiceTest()
	{
		ServiceOptions.GuideFolder = ToUtf8(FPaths::ProjectDir() / TEXT("Source/VorelService/Content/Guide"));
		ServiceOptions.DataFile = ToUtf8(Folder.GetPath(TEXT("service.sqlite")));
		ServiceOptions.Clock = [this]
		{
			return ServiceTime.load();
		};
		StartServer();
		Options.Issuer = FromUtf8(Server->GetAddress());
		ServiceOptions.Port = QUrl(QString::fromStdString(Server->GetAddress())).port();
	}

	~FLoginServiceTest() override { EndService(); }

	void StartServer()
	{
		std::string Error;
		Server = FLocalService::Start(ServiceOptions, Error);
		EXPECT_TRUE(Server) << Error;
	}

	QByteArray SendToServer(const QByteArray& Method, const std::string& Target, const QByteArray& Headers, const QByteArray& Body = {})
	{
		const QByteArray Length = Body.isEmpty() ? QByteArray() : "Content-Length: " + QByteArray::number(Body.size()) + "\r\n";
		return SendTo(Server->GetAddress(), Method + " " + QByteArray::fromStdString(Target) + " HTTP/1.1\r\nHost: HOST\r\n" + Headers +
												Length + "Connection: close\r\n\r\n" + Body);
	}

	// What a person does on the page. Returns where the browser is sent then.
	QByteArray FillInPage(const char* Action = "allow")
	{
		const std::string Url = ToUtf8(OpenedPages.Last());
		const QByteArray Page = SendToServer("GET", Url.substr(Server->GetAddress().size()), "");
		static const QRegularExpression Hidden(QStringLiteral("<input type=\"hidden\" name=\"([^\"]*)\" value=\"([^\"]*)\">"));
		FFormFields Fields = {{"name", "Ada"}, {"action", Action}};
		for (const QRegularExpressionMatch& Match : Hidden.globalMatch(QString::fromUtf8(Page)))
		{
			QString Value = Match.captured(2).replace(QLatin1String("&amp;"), QLatin1String("&"));
			Fields.emplace_back(Match.captured(1).toStdString(), Value.toStdString());
		}
		const QByteArray Reply = SendToServer(
			"POST", "/login", "Content-Type: application/x-www-form-urlencoded\r\n", QByteArray::fromStdString(WriteForm(Fields)));
		const QRegularExpressionMatch Location =
			QRegularExpression(QStringLiteral("\r\nLocation: http://127.0.0.1:\\d+(/\\S+)\r\n")).match(QString::fromUtf8(Reply));
		EXPECT_TRUE(Location.hasMatch()) << Page.toStdString() << Reply.toStdString();
		const QByteArray Target = Location.captured(1).toUtf8();
		SecretsGiven.append(GetCode(Target));
		return Target;
	}

	static QByteArray GetCode(const QByteArray& Target)
	{
		return QByteArray::fromStdString(GetField(ReadForm(Target.mid(Target.indexOf('?') + 1).toStdString()), "code"));
	}

	static QByteArray ReplaceCode(QByteArray Target, const QByteArray& Code) { return Target.replace(GetCode(Target), Code); }

	// The status of a request in the user's name.
	QByteArray AskForUser(const FString& Token)
	{
		SecretsGiven.append(QByteArray::fromStdString(ToUtf8(Token)));
		return SendToServer("GET", "/v1/user", "Authorization: Bearer " + SecretsGiven.last() + "\r\n").mid(9, 3);
	}

	void LogInOnPage()
	{
		OpenPage();
		Browse(FillInPage());
		EXPECT_TEXT(WaitForEnd(), SignedIn);
		EXPECT_TRUE(PumpUntil([this] { return !Folder.Read(TEXT("login.json")).empty(); }));
	}

	void ExpectLoggedOut(const FString& Sentence)
	{
		EXPECT_TEXT(WaitForEnd(), Sentence);
		EXPECT_FALSE(Service().IsAuthenticated());
		LogInOnPage();
		LogOut();
	}

	std::atomic<std::int64_t> ServiceTime{1'800'000'000};
	FLocalServiceOptions ServiceOptions;
	std::unique_ptr<FLocalService> Server;
};
} // namespace

TEST_F(FLoginServiceTest, BadInputLeavesThePanelIdleAndAnotherTryWorks)
{
	OpenPage();
	const QByteArray Good = FillInPage();
	EXPECT_TRUE(Browse("/favicon.ico").startsWith("HTTP/1.1 404 "));
	EXPECT_TRUE(Browse(QByteArray(Good).replace("state=", "state=x")).contains("out of date"));
	Browse(Good);
	EXPECT_EQ(Browse(Good), "");
	EXPECT_TEXT(WaitForEnd(), SignedIn);
	EXPECT_EQ(AskForUser(GetToken()), "200");
	LogOut();

	OpenPage();
	Browse(FillInPage("cancel"));
	ExpectLoggedOut(TEXT("The sign-in was cancelled in the browser. Click \"Log in\" to try again."));

	OpenPage();
	Browse(ReplaceCode(FillInPage(), GetCode(Good)));
	ExpectLoggedOut(Refused);

	// A second click: nobody waits for the first attempt's code, and it is of no use to the second one.
	OpenPage();
	const std::string OldAddress = GetParameter("redirect_uri");
	const QByteArray Other = FillInPage();
	OpenPage();
	EXPECT_EQ(SendTo(OldAddress, "GET " + Other + " HTTP/1.1\r\nHost: HOST\r\n\r\n"), "");
	EXPECT_TRUE(Browse(Other).contains("out of date"));
	Browse(ReplaceCode(FillInPage(), GetCode(Other)));
	ExpectLoggedOut(Refused);

	OpenPage();
	const QByteArray Late = FillInPage();
	ServiceTime += 120;
	Browse(Late);
	ExpectLoggedOut(Refused);

	bBrowser = false;
	Service().StartLogin();
	EXPECT_TRUE(WaitForEnd().StartsWith(TEXT("No browser could be opened")));
	bBrowser = true;
	OpenPage();
	const QByteArray Unreached = FillInPage();
	Server.reset();
	Browse(Unreached);
	EXPECT_TRUE(WaitForEnd().Contains(TEXT("can't be reached. Check the network")));
	StartServer();
	LogInOnPage();
}

TEST_F(FLoginServiceTest, RenewsWhatTheServerNoLongerTakes)
{
	LogInOnPage();
	const FString First = GetToken();
	EXPECT_EQ(AskForUser(First), "200");
	// The server's clock goes on, this machine's stands still.
	ServiceTime += 7200;
	EXPECT_EQ(AskForUser(First), "401");
	const FString Second = GetToken(First);
	EXPECT_EQ(AskForUser(Second), "200");
	EndService();
	EXPECT_TEXT(GetToken(), Second);

	ServiceTime += 3600 * 24 * 100;
	EXPECT_TEXT(GetToken(Second), TEXT("none"));
	EXPECT_TEXT(WaitForEnd(), TEXT("Your sign-in has ended. Click \"Log in\" to sign in again."));
	LogInOnPage();
	const FString Third = GetToken();
	LogOut();
	EXPECT_TRUE(PumpUntil([this, &Third] { return AskForUser(Third) == "401"; }));
}
