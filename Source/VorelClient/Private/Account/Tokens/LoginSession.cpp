// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Tokens/RefreshLock.h"

#include "Account/AccountText.h"
#include "Account/Tokens/LoginSession.h"
#include "Account/LogVorelAccount.h"
#include "Account/Server/Revocation.h"
#include "Account/Tokens/TokenRenewal.h"

FLoginSession::FLoginSession(const FLoginOptions& InOptions, FAuthorizationMetadata& InMetadata)
	: Options(InOptions)
	, Metadata(InMetadata)
	, Store(Options)
	, bSignedIn(Store.HasTokens())
	, NextTurn(MakeUnique<FNextTurn>([this] { Serve(); }))
{
	if (bSignedIn)
	{
		Store.Load([this](ETokenLoad Load, const TOptional<FTokenSet>& Loaded) { HandleLoaded(Load, Loaded); });
	}
	else if (Store.IsToBeCleared())
	{
		ForgetStored();
	}
}

FLoginSession::~FLoginSession() = default;

void FLoginSession::HandleLoaded(ETokenLoad Load, const TOptional<FTokenSet>& Loaded)
{
	Tokens = Loaded;
	if (Load == ETokenLoad::Found)
	{
		SignInLate();
		Serve();
	}
	else if (bSignedIn)
	{
		// What can't be read now may be read by the next run.
		if (Load == ETokenLoad::Missing)
		{
			Forget();
		}
		End(Load == ETokenLoad::Missing ? AccountText::TokensMissing() : AccountText::TokensUnreadable());
	}
}

void FLoginSession::SignInLate()
{
	if (!bSignedIn)
	{
		bSignedIn = true;
		UE_LOG(LogVorelAccount, Display, TEXT("%s"), *AccountText::SignedIn().ToString());
		OnChanged();
	}
}

void FLoginSession::SignIn(const FTokenSet& InTokens)
{
	Renewal.Reset();
	bSignedIn = true;
	Tokens = InTokens;
	TakeStoreTurn([this](const TFunction<void()>& OnDone) { Store.Save(*Tokens, OnDone); });
	NextTurn->Ask();
}

void FLoginSession::SignOut()
{
	if (!bSignedIn)
	{
		return;
	}
	bSignedIn = false;
	Renewal.Reset();
	Store.ForgetMarker();
	NextTurn->Ask();
	Tokens ? Forget() : ForgetStored();
}

void FLoginSession::Forget()
{
	if (Tokens)
	{
		Revoke(*Tokens);
		Tokens.Reset();
	}
	TakeStoreTurn([this](const TFunction<void()>& OnDone) { Store.Clear(OnDone); });
}

void FLoginSession::ForgetStored()
{
	TakeStoreTurn(
		[this](const TFunction<void()>& OnDone)
		{
			if (!Store.IsToBeCleared())
			{
				// Another program has cleared it, or somebody is signed in anew there.
				OnDone();
				return;
			}
			Store.Load(
				[this, OnDone](ETokenLoad, const TOptional<FTokenSet>& Loaded)
				{
					if (Loaded)
					{
						Revoke(*Loaded);
					}
					Store.Clear(OnDone);
				});
		});
}

void FLoginSession::TakeStoreTurn(TFunction<void(const TFunction<void()>&)> Work)
{
	// What was under way would end this turn with its own.
	Store.Cancel();
	const auto HandleDone = [this]
	{
		StoreTurn.Reset();
		NextTurn->Ask();
	};
	StoreTurn = MakeUnique<FRefreshLock>(Options.DataFolder, Options.Limits.Lock, [Work, HandleDone](bool) { Work(HandleDone); });
}

void FLoginSession::Revoke(const FTokenSet& Over)
{
	// Each ends by itself.
	Revocations.RemoveAll([](const TSharedPtr<FRevocation>& Revocation) { return Revocation->HasEnded(); });
	Revocations.Add(MakeShared<FRevocation>(Metadata, Options, Over));
}

void FLoginSession::End(const FText& Failure)
{
	bSignedIn = false;
	Tokens.Reset();
	UE_LOG(LogVorelAccount, Warning, TEXT("%s"), *Failure.ToString());
	OnChanged();
	ServeAll();
}

TSharedPtr<void> FLoginSession::RequestToken(const FString& RefusedToken, TFunction<void(const FString& Token)> OnToken)
{
	NextTurn->Ask();
	return Waiting.Add({ToUtf8(RefusedToken), ::MoveTemp(OnToken)});
}

void FLoginSession::Serve()
{
	if (bSignedIn && (!Tokens || Renewal))
	{
		return;
	}
	bool bRenew = false;
	bool bRefused = false;
	Waiting.Answer(
		[this, &bRenew, &bRefused](const FWaiter& Waiter)
		{
			const bool bGood = Tokens && Tokens->Access != Waiter.RefusedToken && Tokens->IsFresh(Options.Clock, Options.Limits.Margin);
			if (bSignedIn && !bGood)
			{
				bRenew = true;
				bRefused = bRefused || (Tokens && Tokens->Access == Waiter.RefusedToken);
				return false;
			}
			Waiter.OnToken(bGood ? FromUtf8(Tokens->Access) : FString());
			return true;
		});
	if (bRenew && bSignedIn && Tokens && !Renewal && !StoreTurn)
	{
		Renew(bRefused ? Tokens->Access : std::string());
	}
}

void FLoginSession::Renew(const std::string& RefusedToken)
{
	Renewal = MakeUnique<FTokenRenewal>(Store, Metadata, Options, *Tokens, RefusedToken,
		[this](ERenewal End, const TOptional<FTokenSet>& Newest, const FText& Failure) { HandleRenewed(End, Newest, Failure); });
}

void FLoginSession::HandleRenewed(ERenewal Kind, const TOptional<FTokenSet>& Newest, const FText& Failure)
{
	Renewal.Reset();
	Tokens = Newest;
	if (Kind == ERenewal::Ended)
	{
		End(Failure);
		return;
	}
	UE_CLOG(Kind == ERenewal::Failed, LogVorelAccount, Warning, TEXT("%s"), *AccountText::NotRenewed(Failure).ToString());
	ServeAll();
}

void FLoginSession::ServeAll()
{
	Waiting.Answer(
		[this](const FWaiter& Waiter)
		{
			// A token that is old by the clock may still be good: the server decides.
			Waiter.OnToken(Tokens && Tokens->Access != Waiter.RefusedToken ? FromUtf8(Tokens->Access) : FString());
			return true;
		});
}
