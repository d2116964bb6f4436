// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTextStream>

#include "LoginFixture.h"
#include "RenewingProgram.h"

#include "Account/Server/AuthorizationMetadata.h"
#include "Account/Tokens/LoginSession.h"
#include "Http/QtText.h"
#include <unistd.h>

static void Say(const FString& Line)
{
	QTextStream(stdout) << ToQString(Line) << Qt::endl;
}

int FRenewingProgram::Run(const FString& Issuer, const FString& DataFolder)
{
	const FLoginOptions Options = MakeFileLogin(Issuer, DataFolder);
	FAuthorizationMetadata Metadata(Options.Issuer, Options.Limits.Http);
	FLoginSession Session(Options, Metadata);
	Session.OnChanged = [] {
	};
	TSharedPtr<void> Request;
	QSocketNotifier Input(STDIN_FILENO, QSocketNotifier::Read);
	QObject::connect(&Input, &QSocketNotifier::activated,
		[&Session, &Request]
		{
			const FString RefusedToken = ToFString(QTextStream(stdin).readLine());
			if (RefusedToken.IsEmpty())
			{
				QCoreApplication::quit();
				return;
			}
			Request = Session.RequestToken(RefusedToken, [](const FString& Token) { Say(Token.IsEmpty() ? TEXT("none") : Token); });
			PumpUntil([Turns = 0]() mutable { return ++Turns > 50; });
			Say(TEXT("asked"));
		});
	return QCoreApplication::exec();
}
