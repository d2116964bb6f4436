// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Account/Tokens/LoginMarker.h"
#include "Account/Server/TokenSet.h"

class FNextTurn;
class FSecretStoreCall;

enum class ETokenLoad : uint8
{
	Found,
	Missing,
	Unreadable
};

// Keeps the tokens beyond the run: in the desktop's secret store, else in a file where that is allowed, else not at all, and says so.
// One thing at a time: what is begun ends the interest in what was under way. No handler is called before the call returns, and none once
// the store is gone.
class FTokenStore final
{
public:
	using FOnLoaded = TFunction<void(ETokenLoad Load, const TOptional<FTokenSet>& Tokens)>;

	// The options must outlive it.
	explicit FTokenStore(const FLoginOptions& InOptions);
	~FTokenStore();

	// Somebody is signed in whose tokens should be here. Asks neither the secret store nor the network.
	bool HasTokens() const { return !IsToBeCleared() && GetPlace() != ETokenPlace::None; }

	// The last run ended before what it signed out of was cleared. It may still be there.
	bool IsToBeCleared() const;

	// Other programs find the tokens, and may have renewed them or let them go.
	bool IsShared() const { return bShared; }

	// Unreadable may be followed by what is read later.
	void Load(FOnLoaded OnLoaded);
	void Save(const FTokenSet& Tokens, TFunction<void()> OnSaved);
	void Clear(TFunction<void()> OnCleared);

	// No handler is called any more. What was begun may still happen.
	void Cancel();

	// Nobody is signed in at the next start, wherever the tokens lie until they are cleared.
	void ForgetMarker();

private:
	// Where tokens are read from.
	ETokenPlace GetPlace() const;
	void LoadFile(const FOnLoaded& OnLoaded);
	bool SaveFile(const FTokenSet& Tokens) const;
	void RemoveFile() const;
	void HandleSaved(ETokenPlace Place, const TFunction<void()>& OnSaved);
	// Place: where they lie, though that could not be noted.
	void HandleNotShared(ETokenPlace Place);
	void Later(TFunction<void()> Action);

	const FLoginOptions& Options;
	const FLoginMarker Marker;
	const FString TokenFile;
	bool bShared = false;
	bool bNoticeGiven = false;
	TUniquePtr<FSecretStoreCall> Call;
	TUniquePtr<FNextTurn> NextTurn;
};
