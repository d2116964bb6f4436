// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/Server/TokenSet.h"
#include "Account/Tokens/TokenStore.h"

class FAuthorizationMetadata;
class FRefreshLock;
class FTokenCall;
struct FTokenReply;

enum class ERenewal : uint8
{
	Renewed,
	// Not now. Whoever was signed in still is.
	Failed,
	// Nobody is signed in any more, and nothing is stored.
	Ended
};

// One renewal of the tokens, by this program or by another one at the same time: takes the lock, looks what is stored, and asks the server
// only for what nobody else has got meanwhile. New tokens are stored before anybody hears of them. Destroying it stops it in silence.
class FTokenRenewal final
{
public:
	// Tokens: the newest ones that are known, none once it has ended. Failure: a sentence, where it did not work.
	using FOnEnded = TFunction<void(ERenewal End, const TOptional<FTokenSet>& Tokens, const FText& Failure)>;

	// All that is referred to must outlive the renewal. RefusedToken: the access token that is no good, or empty. OnEnded may destroy it.
	FTokenRenewal(FTokenStore& InStore, FAuthorizationMetadata& InMetadata, const FLoginOptions& InOptions, const FTokenSet& InTokens,
		const std::string& InRefusedToken, FOnEnded InOnEnded);
	~FTokenRenewal();

private:
	void HandleLock(bool bTaken);
	void LookAndAsk();
	void HandleStored(ETokenLoad Load, const TOptional<FTokenSet>& Stored);
	void Ask();
	void HandleReply(const FTokenReply& Reply);
	void HandleNew();
	void HandleRefusal();
	void Forget(const FText& Reason);
	void End(ERenewal Kind, const FText& Failure);

	FTokenStore& Store;
	FAuthorizationMetadata& Metadata;
	const FLoginOptions& Options;
	FTokenSet Tokens;
	const std::string RefusedToken;
	// The server did not want this one.
	std::string RefusedRefresh;
	FOnEnded OnEnded;
	TUniquePtr<FRefreshLock> Lock;
	TSharedPtr<void> MetadataRequest;
	TUniquePtr<FTokenCall> Call;
};
