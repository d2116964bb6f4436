// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>
#include <QSocketNotifier>

#include "LoginFixture.h"
#include "RenewingProgram.h"

#include "Account/AuthorizationMetadata.h"
#include "Account/LoginSession.h"
#include <unistd.h>

namespace
{
void Say(const FString& Line)
{
	const FTCHARToUTF8 Bytes(Line + TEXT("\n"));
	check(::write(STDOUT_FILENO, Bytes.Get(), static_cast<size_t>(Bytes.Length())) == Bytes.Length());
}

QByteArray ReadLine()
{
	char Line[256];
	return QByteArray(Line, std::max<qsizetype>(::read(STDIN_FILENO, Line, sizeof(Line)), 0)).trimmed();
}
} // namespace

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
			const QByteArray RefusedToken = ReadLine();
			if (RefusedToken.isEmpty())
			{
				QCoreApplication::quit();
				return;
			}
			Request = Session.RequestToken(
				FString(RefusedToken.constData()), [](const FString& Token) { Say(Token.IsEmpty() ? TEXT("none") : Token); });
			PumpUntil([Turns = 0]() mutable { return ++Turns > 50; });
			Say(TEXT("asked"));
		});
	return QCoreApplication::exec();
}
