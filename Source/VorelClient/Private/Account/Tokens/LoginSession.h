// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/AccessTokenSource.h"
#include "Account/Tokens/TokenStore.h"
#include "Account/WaitingList.h"

class FAuthorizationMetadata;
class FNextTurn;
class FRefreshLock;
class FRevocation;
class FTokenRenewal;
enum class ERenewal : uint8;

// Who is signed in, and the tokens of that login from its beginning to its end. Renews them when somebody asks for one, not before.
class FLoginSession final : public IAccessTokenSource
{
public:
	// Both must outlive the session. Whoever was signed in at the end of the last run is signed in.
	FLoginSession(const FLoginOptions& InOptions, FAuthorizationMetadata& InMetadata);
	~FLoginSession() override;

	// Nobody is signed in any more though nobody signed out; or somebody is whose tokens could be read at last. Why was logged for the
	// user. Must not destroy the session.
	TFunction<void()> OnChanged;

	bool IsSignedIn() const { return bSignedIn; }
	void SignIn(const FTokenSet& InTokens);
	void SignOut();

	// The handler must not destroy the session.
	[[nodiscard]] TSharedPtr<void> RequestToken(const FString& RefusedToken, TFunction<void(const FString& Token)> OnToken) override;

private:
	struct FWaiter
	{
		std::string RefusedToken;
		TFunction<void(const FString&)> OnToken;
	};

	void HandleLoaded(ETokenLoad Load, const TOptional<FTokenSet>& Loaded);
	void SignInLate();
	void Serve();
	void Renew(const std::string& RefusedToken);
	void HandleRenewed(ERenewal End, const TOptional<FTokenSet>& Newest, const FText& Failure);
	// Everybody gets what there is.
	void ServeAll();
	void Forget();
	// What was signed out of before it was loaded, perhaps in the run before.
	void ForgetStored();
	// Work tells by its argument that it is done. No renewal begins before that.
	void TakeStoreTurn(TFunction<void(const TFunction<void()>&)> Work);
	void Revoke(const FTokenSet& Over);
	void End(const FText& Failure);

	const FLoginOptions& Options;
	FAuthorizationMetadata& Metadata;
	FTokenStore Store;
	bool bSignedIn = false;
	// Unset also while they are loaded.
	TOptional<FTokenSet> Tokens;
	TWaitingList<FWaiter> Waiting;
	TUniquePtr<FNextTurn> NextTurn;
	TUniquePtr<FTokenRenewal> Renewal;
	// Held while a new login is stored, or an old one cleared.
	TUniquePtr<FRefreshLock> StoreTurn;
	TArray<TSharedPtr<FRevocation>> Revocations;
};
