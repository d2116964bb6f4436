// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QTimer>
#include <qt6keychain/keychain.h>

#include "Account/Tokens/SecretStoreCall.h"
#include "Http/QtText.h"

#include "Account/LogVorelAccount.h"

namespace
{
ESecretStoreEnd GetEnd(const QKeychain::Job& Job)
{
	if (Job.error() != QKeychain::NoError && Job.error() != QKeychain::EntryNotFound)
	{
		UE_LOG(
			LogVorelAccount, Log, TEXT("The secret store failed (%d): %s"), static_cast<int32>(Job.error()), *ToFString(Job.errorString()));
		return ESecretStoreEnd::Failed;
	}
	return Job.error() == QKeychain::NoError ? ESecretStoreEnd::Done : ESecretStoreEnd::Missing;
}

std::string GetSecret(const QKeychain::Job& Job)
{
	const auto* const Reading = qobject_cast<const QKeychain::ReadPasswordJob*>(&Job);
	return Reading ? Reading->textData().toStdString() : std::string();
}
} // namespace

FSecretStoreCall::FSecretStoreCall()
	: Context(MakeUnique<QObject>())
{
}

FSecretStoreCall::~FSecretStoreCall() = default;

template <class JobType>
TUniquePtr<FSecretStoreCall> FSecretStoreCall::Start(JobType* Job, const FString& Account, double Seconds, FOnEnded OnEnded)
{
	TUniquePtr<FSecretStoreCall> Call(new FSecretStoreCall);
	QObject* const Context = Call->Context.Get();
	QObject::connect(Job, &QKeychain::Job::finished, Context,
		[OnEnded](QKeychain::Job* Ended)
		{
			// The handler destroys this function, perhaps.
			const FOnEnded Handler = OnEnded;
			Handler(GetEnd(*Ended), GetSecret(*Ended));
		});
	QTimer::singleShot(FMath::CeilToInt(Seconds * 1000.0), Context,
		[OnEnded]
		{
			UE_LOG(LogVorelAccount, Log, TEXT("The secret store does not answer"));
			const FOnEnded Handler = OnEnded;
			Handler(ESecretStoreEnd::Failed, std::string());
		});
	Job->setInsecureFallback(false);
	Job->setKey(ToQString(Account));
	Job->start();
	return Call;
}

static QString GetService()
{
	return QStringLiteral("Vorel AI");
}

TUniquePtr<FSecretStoreCall> FSecretStoreCall::Read(const FString& Account, double Seconds, FOnEnded OnEnded)
{
	return Start(new QKeychain::ReadPasswordJob(GetService()), Account, Seconds, ::MoveTemp(OnEnded));
}

TUniquePtr<FSecretStoreCall> FSecretStoreCall::Write(const FString& Account, const std::string& Secret, double Seconds, FOnEnded OnEnded)
{
	auto* const Job = new QKeychain::WritePasswordJob(GetService());
	Job->setTextData(QString::fromStdString(Secret));
	return Start(Job, Account, Seconds, ::MoveTemp(OnEnded));
}

TUniquePtr<FSecretStoreCall> FSecretStoreCall::Delete(const FString& Account, double Seconds, FOnEnded OnEnded)
{
	return Start(new QKeychain::DeletePasswordJob(GetService()), Account, Seconds, ::MoveTemp(OnEnded));
}
