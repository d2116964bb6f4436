// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Tokens/RefreshLock.h"

#include "Account/AccountText.h"
#include "Account/Server/AuthorizationMetadata.h"
#include "Account/Server/TokenCall.h"
#include "Account/Tokens/TokenRenewal.h"

FTokenRenewal::FTokenRenewal(FTokenStore& InStore, FAuthorizationMetadata& InMetadata, const FLoginOptions& InOptions,
	const FTokenSet& InTokens, const std::string& InRefusedToken, FOnEnded InOnEnded)
	: Store(InStore)
	, Metadata(InMetadata)
	, Options(InOptions)
	, Tokens(InTokens)
	, RefusedToken(InRefusedToken)
	, OnEnded(::MoveTemp(InOnEnded))
	, Lock(MakeUnique<FRefreshLock>(Options.DataFolder, Options.Limits.Lock, [this](bool bTaken) { HandleLock(bTaken); }))
{
}

FTokenRenewal::~FTokenRenewal()
{
	Store.Cancel();
}

void FTokenRenewal::HandleLock(bool bTaken)
{
	// What nobody else has needs no lock.
	bTaken || !Store.IsShared() ? LookAndAsk() : End(ERenewal::Failed, AccountText::StoreBusy());
}

void FTokenRenewal::LookAndAsk()
{
	if (!Store.IsShared())
	{
		Ask();
	}
	else if (!Store.HasTokens())
	{
		HandleStored(ETokenLoad::Missing, {});
	}
	else
	{
		Store.Load([this](ETokenLoad Load, const TOptional<FTokenSet>& Stored) { HandleStored(Load, Stored); });
	}
}

void FTokenRenewal::HandleStored(ETokenLoad Load, const TOptional<FTokenSet>& Stored)
{
	Store.Cancel();
	if (Load == ETokenLoad::Missing)
	{
		Forget(AccountText::EndedElsewhere());
		return;
	}
	if (Load == ETokenLoad::Unreadable && RefusedRefresh.empty())
	{
		// New tokens could not be kept, and those that are stored would be used up.
		End(ERenewal::Failed, AccountText::StoreLocked());
		return;
	}
	const bool bNew = Stored && Stored->Access != Tokens.Access;
	Tokens = Stored ? *Stored : Tokens;
	if (bNew && Tokens.Access != RefusedToken && Tokens.IsFresh(Options.Clock, Options.Limits.Margin))
	{
		End(ERenewal::Renewed, FText());
	}
	else
	{
		Ask();
	}
}

void FTokenRenewal::Ask()
{
	if (Tokens.Refresh.empty() || Tokens.Refresh == RefusedRefresh)
	{
		Forget(AccountText::Ended());
		return;
	}
	MetadataRequest = Metadata.Request(
		[this](const FAuthorizationServer* Server, const FText& Failure)
		{
			if (!Server)
			{
				End(ERenewal::Failed, Failure);
				return;
			}
			Call = MakeUnique<FTokenCall>(Server->TokenEndpoint,
				FFormFields{{"grant_type", "refresh_token"}, {"refresh_token", Tokens.Refresh}, {"client_id", ToUtf8(Options.ClientId)}},
				Options, [this](const FTokenReply& Reply) { HandleReply(Reply); });
		});
}

void FTokenRenewal::HandleReply(const FTokenReply& Reply)
{
	Call.Reset();
	if (Reply.bRefused)
	{
		HandleRefusal();
	}
	else if (!Reply.Tokens)
	{
		End(ERenewal::Failed, Reply.Failure);
	}
	else
	{
		const std::string Former = Tokens.Refresh;
		Tokens = *Reply.Tokens;
		Tokens.Refresh = Tokens.Refresh.empty() ? Former : Tokens.Refresh;
		HandleNew();
	}
}

void FTokenRenewal::HandleNew()
{
	if (Store.IsShared() && !Store.HasTokens())
	{
		// Who signs out does not wait for the lock.
		Forget(AccountText::EndedElsewhere());
	}
	else
	{
		Store.Save(Tokens, [this] { End(ERenewal::Renewed, FText()); });
	}
}

void FTokenRenewal::HandleRefusal()
{
	// Where the lock does not work, another program may have been quicker; then what is stored now is another one.
	RefusedRefresh = Tokens.Refresh;
	LookAndAsk();
}

void FTokenRenewal::Forget(const FText& Reason)
{
	if (Store.IsShared())
	{
		Store.Clear([this, Reason] { End(ERenewal::Ended, Reason); });
	}
	else
	{
		// What is stored is another one's login.
		End(ERenewal::Ended, Reason);
	}
}

void FTokenRenewal::End(ERenewal Kind, const FText& Failure)
{
	Lock.Reset();
	const FOnEnded Handler = OnEnded;
	const TOptional<FTokenSet> Newest = Kind == ERenewal::Ended ? TOptional<FTokenSet>() : Tokens;
	const FText Reason = Failure;
	Handler(Kind, Newest, Reason);
}
