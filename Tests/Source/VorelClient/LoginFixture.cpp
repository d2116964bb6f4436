// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QUrl>

#include "LoginFixture.h"

#include "HAL/PlatformHooks.h"
#include "Http/Form.h"
#include "Http/JsonText.h"

FLoginTest::FLoginTest()
{
	Options.Issuer = FString(Server.GetAddress().constData());
	Options.ClientId = TEXT("vorel-editor");
	Options.DataFolder = Folder.GetPath();
	Options.KeyringAccount = TEXT("local test");
	Options.bUseKeyring = false;
	Options.bAllowTokenFile = true;
	Options.Clock = {[this] { return Now; },
		[this]
		{
			return TimeOfDay;
		}};
	FPlatformHooks::Get().LaunchURL = [this](const FString& Url, FString& OutError)
	{
		OpenedPages.Add(Url);
		OutError = bBrowser ? TEXT("") : TEXT("no browser");
		return bBrowser;
	};
}

FLoginTest::~FLoginTest()
{
	EndService();
	FPlatformHooks::Get() = FPlatformHooks();
	ExpectNoSecretInLog();
}

UOAuthAuthenticationService& FLoginTest::Service()
{
	if (!Started.Get())
	{
		Started.Make().Initialize(Options);
		Started.Get()->OnAuthenticationStateChanged.AddLambda([this] { ++Events; });
	}
	return *Started.Get();
}

void FLoginTest::OpenPage()
{
	const int32 Before = OpenedPages.Num();
	Service().StartLogin();
	EXPECT_TRUE(PumpUntil([this, Before] { return OpenedPages.Num() > Before; }));
	SecretsGiven.append(QByteArray::fromStdString(GetParameter("state")));
}

FString FLoginTest::WaitForEnd()
{
	EXPECT_TRUE(PumpUntil([this] { return Events > 0; }));
	EXPECT_EQ(Events, 1);
	Events = 0;
	FString Told;
	for (const FLogCapture::FMessage& Message : Log.GetMessages())
	{
		if (Message.Category == "LogVorelAccount" && Message.Verbosity <= ELogVerbosity::Display)
		{
			Told += (Told.IsEmpty() ? TEXT("") : TEXT(" ")) + Message.Text;
		}
	}
	ExpectNoSecretInLog();
	Log.Clear();
	return Told;
}

void FLoginTest::LogIn(const QByteArray& Tokens)
{
	LogInUnstored(Tokens);
	EXPECT_TRUE(PumpUntil([this] { return IsNoted("\"secret store\"") || IsNoted("\"file\""); }));
}

void FLoginTest::LogInUnstored(const QByteArray& Tokens)
{
	Server.Then({ReplyMetadata(Server), ReplyJson("200 OK", Tokens)});
	OpenPage();
	Browse(MakeRedirect());
	EXPECT_TEXT(WaitForEnd(), TEXT("You are signed in."));
	EXPECT_TRUE(Service().IsAuthenticated());
}

void FLoginTest::LogOut()
{
	Service().Logout();
	EXPECT_TEXT(WaitForEnd(), TEXT("You are signed out."));
}

bool FLoginTest::IsSignedInAtNextStart()
{
	EndService();
	return Service().IsAuthenticated();
}

FString FLoginTest::GetToken(const FString& RefusedToken, const FScriptedServer::FHandler& Reply)
{
	if (Reply)
	{
		Server.Then(Reply);
	}
	FString Token;
	const TSharedPtr<void> Request = Service().GetTokens().RequestToken(
		RefusedToken, [&Token](const FString& Given) { Token = Given.IsEmpty() ? TEXT("none") : Given; });
	EXPECT_TRUE(Token.IsEmpty());
	EXPECT_TRUE(PumpUntil([&Token] { return !Token.IsEmpty(); }));
	return Token;
}

std::string FLoginTest::GetParameter(const char* Name) const
{
	const std::string Url = ToUtf8(OpenedPages.Last());
	return GetField(ReadForm(Url.substr(Url.find('?') + 1)), Name);
}

QByteArray FLoginTest::MakeRedirect(const QByteArray& Code, const QByteArray& State) const
{
	const QByteArray GoodState = QByteArray::fromStdString(GetParameter("state"));
	return "/callback?code=" + Code + "&state=" + (State.isEmpty() ? GoodState : State) + "&iss=" + Server.GetAddress().toPercentEncoding();
}

QByteArray FLoginTest::SendTo(const std::string& Url, const QByteArray& Bytes)
{
	const QUrl Address(QString::fromStdString(Url));
	QTcpSocket Socket;
	Socket.connectToHost(Address.host(), static_cast<quint16>(Address.port()));
	Socket.write(QByteArray(Bytes).replace("HOST", Address.authority().toLatin1()));
	EXPECT_TRUE(PumpUntil([&Socket] { return Socket.state() == QAbstractSocket::UnconnectedState; }));
	return Socket.readAll();
}

QByteArray FLoginTest::Browse(const QByteArray& Target) const
{
	return SendToLogin("GET " + Target + " HTTP/1.1\r\nHost: HOST\r\n\r\n");
}

void FLoginTest::ExpectNoSecretInLog() const
{
	const std::string Logged = ToUtf8(Log.Dump());
	for (const QByteArray& Secret : SecretsGiven)
	{
		EXPECT_TRUE(Secret.isEmpty() || Logged.find(Secret.toStdString()) == std::string::npos) << Logged;
	}
	for (const char* const Secret : {"access-", "refresh-", "code-1"})
	{
		EXPECT_EQ(Logged.find(Secret), std::string::npos) << Logged;
	}
}

FScriptedServer::FHandler ReplyMetadata(const FScriptedServer& Server, const QByteArray& Changes)
{
	const std::string Issuer = Server.GetAddress().toStdString();
	FJson Metadata = {{"issuer", Issuer}, {"authorization_endpoint", Issuer + "/login"}, {"token_endpoint", Issuer + "/token"},
		{"revocation_endpoint", Issuer + "/revoke"}, {"code_challenge_methods_supported", {"S256"}},
		{"authorization_response_iss_parameter_supported", true}};
	Metadata.merge_patch(ParseJson(Changes.toStdString()));
	return ReplyJson("200 OK", QByteArray::fromStdString(Metadata.dump()));
}

QByteArray MakeTokens(const QByteArray& Name, const QByteArray& Seconds)
{
	return "{\"token_type\":\"bearer\",\"access_token\":\"access-" + Name + "\",\"refresh_token\":\"refresh-" + Name +
		   "\",\"expires_in\":" + Seconds + "}";
}
