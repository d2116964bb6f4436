// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/NextTurn.h"

#include "Account/AccountText.h"
#include "Account/LogVorelAccount.h"
#include "Account/Tokens/PrivateFile.h"
#include "Account/Tokens/SecretStoreCall.h"
#include "Account/Secrets.h"
#include "Account/Tokens/TokenStore.h"
#include "Misc/Paths.h"

namespace
{
// A folder of its own, which is the user's alone, whatever the data folder is.
FString MakeFileName(const FLoginOptions& Options)
{
	const std::string Name = Secrets::Hash(ToUtf8(Options.KeyringAccount)).substr(0, 16) + ".json";
	return Options.DataFolder / TEXT("tokens") / FromUtf8(Name);
}

void Report(const FTokenStore::FOnLoaded& OnLoaded, const std::string& Stored, const FLoginClock& Clock)
{
	const TOptional<FTokenSet> Tokens = FTokenSet::Read(Stored, Clock);
	OnLoaded(Tokens ? ETokenLoad::Found : ETokenLoad::Missing, Tokens);
}
} // namespace

FTokenStore::FTokenStore(const FLoginOptions& InOptions)
	: Options(InOptions)
	, Marker(Options.DataFolder, Options.KeyringAccount)
	, TokenFile(MakeFileName(Options))
{
	bShared = HasTokens();
	if (!Options.bAllowTokenFile)
	{
		RemoveFile();
	}
}

FTokenStore::~FTokenStore() = default;

ETokenPlace FTokenStore::GetPlace() const
{
	const ETokenPlace Noted = Marker.Read();
	const bool bSecretStore = Noted == ETokenPlace::SecretStore || Noted == ETokenPlace::LeftSecretStore;
	const bool bFile = Noted == ETokenPlace::File || Noted == ETokenPlace::LeftFile;
	return bSecretStore && Options.bUseKeyring ? ETokenPlace::SecretStore
		   : bFile && Options.bAllowTokenFile  ? ETokenPlace::File
											   : ETokenPlace::None;
}

bool FTokenStore::IsToBeCleared() const
{
	const ETokenPlace Noted = Marker.Read();
	return Noted == ETokenPlace::LeftFile || (Noted == ETokenPlace::LeftSecretStore && Options.bUseKeyring);
}

void FTokenStore::Load(FOnLoaded OnLoaded)
{
	if (GetPlace() != ETokenPlace::SecretStore)
	{
		Later([this, OnLoaded] { LoadFile(OnLoaded); });
		return;
	}
	Call = FSecretStoreCall::Read(Options.KeyringAccount, Options.Limits.SecretStore,
		[this, OnLoaded](ESecretStoreEnd End, const std::string& Secret)
		{
			// One that stays locked says that it holds nothing. But whoever signs out notes that first.
			const bool bLocked = End == ESecretStoreEnd::Missing && Marker.Read() == ETokenPlace::SecretStore;
			End == ESecretStoreEnd::Failed || bLocked ? OnLoaded(ETokenLoad::Unreadable, {}) : Report(OnLoaded, Secret, Options.Clock);
		});
}

void FTokenStore::LoadFile(const FOnLoaded& OnLoaded)
{
	if (GetPlace() == ETokenPlace::SecretStore)
	{
		// Another program has just moved them.
		Load(OnLoaded);
		return;
	}
	std::string Stored;
	const bool bHere = GetPlace() == ETokenPlace::File;
	const PrivateFile::ERead Read = bHere ? PrivateFile::Read(TokenFile, Stored) : PrivateFile::ERead::Missing;
	Read == PrivateFile::ERead::Unusable ? OnLoaded(ETokenLoad::Unreadable, {}) : Report(OnLoaded, Stored, Options.Clock);
}

void FTokenStore::Save(const FTokenSet& Tokens, TFunction<void()> OnSaved)
{
	const auto SaveElsewhere = [this, Tokens, OnSaved]
	{
		HandleSaved(SaveFile(Tokens) ? ETokenPlace::File : ETokenPlace::None, OnSaved);
	};
	if (!Options.bUseKeyring || Options.DataFolder.IsEmpty())
	{
		Later(SaveElsewhere);
		return;
	}
	Call = FSecretStoreCall::Write(Options.KeyringAccount, Tokens.Write(), Options.Limits.SecretStore,
		[this, OnSaved, SaveElsewhere](ESecretStoreEnd End, const std::string&)
		{
			Call.Reset();
			End == ESecretStoreEnd::Done ? HandleSaved(ETokenPlace::SecretStore, OnSaved) : SaveElsewhere();
		});
}

bool FTokenStore::SaveFile(const FTokenSet& Tokens) const
{
	return Options.bAllowTokenFile && !Options.DataFolder.IsEmpty() && PrivateFile::MakePrivateFolder(FPaths::GetPath(TokenFile)) &&
		   PrivateFile::Write(TokenFile, Tokens.Write());
}

void FTokenStore::HandleSaved(ETokenPlace Place, const TFunction<void()>& OnSaved)
{
	bShared = Place != ETokenPlace::None && Marker.Write(Place);
	if (!bShared || Place != ETokenPlace::File)
	{
		// What lies there is used up, and must not be sent again.
		RemoveFile();
	}
	if (!bShared)
	{
		HandleNotShared(Place);
	}
	OnSaved();
}

void FTokenStore::HandleNotShared(ETokenPlace Place)
{
	ForgetMarker();
	if (Place == ETokenPlace::SecretStore)
	{
		Call = FSecretStoreCall::Delete(Options.KeyringAccount, Options.Limits.SecretStore, [](ESecretStoreEnd, const std::string&) {});
	}
	const bool bTried = Place != ETokenPlace::None || Options.bAllowTokenFile || Options.DataFolder.IsEmpty();
	UE_CLOG(!bNoticeGiven, LogVorelAccount, Display, TEXT("%s"),
		*(bTried ? AccountText::NotStored() : AccountText::NoSecretStore()).ToString());
	bNoticeGiven = true;
}

void FTokenStore::Clear(TFunction<void()> OnCleared)
{
	ForgetMarker();
	bShared = false;
	RemoveFile();
	const auto HandleCleared = [this, OnCleared](ESecretStoreEnd End, const std::string&)
	{
		Call.Reset();
		if (Marker.Read() == ETokenPlace::LeftFile || (IsToBeCleared() && End != ESecretStoreEnd::Failed))
		{
			Marker.Write(ETokenPlace::None);
		}
		OnCleared();
	};
	if (!Options.bUseKeyring || Options.DataFolder.IsEmpty())
	{
		Later([HandleCleared] { HandleCleared(ESecretStoreEnd::Done, std::string()); });
		return;
	}
	const auto Delete = [this, HandleCleared]
	{
		Call = FSecretStoreCall::Delete(Options.KeyringAccount, Options.Limits.SecretStore, HandleCleared);
	};
	if (Marker.Read() != ETokenPlace::LeftSecretStore)
	{
		Delete();
		return;
	}
	// One that stays locked pretends to delete, but lets nobody write.
	Call = FSecretStoreCall::Write(Options.KeyringAccount, "{}", Options.Limits.SecretStore,
		[Delete, HandleCleared](ESecretStoreEnd End, const std::string&)
		{ End == ESecretStoreEnd::Done ? Delete() : HandleCleared(End, std::string()); });
}

void FTokenStore::RemoveFile() const
{
	if (!Options.DataFolder.IsEmpty())
	{
		PrivateFile::Remove(TokenFile);
	}
}

void FTokenStore::ForgetMarker()
{
	const ETokenPlace Place = Marker.Read();
	if (Place == ETokenPlace::File)
	{
		Marker.Write(ETokenPlace::LeftFile);
	}
	else if (Place == ETokenPlace::SecretStore && Options.bUseKeyring)
	{
		// What another program keeps in a secret store that this one doesn't use is none of its business.
		Marker.Write(ETokenPlace::LeftSecretStore);
	}
}

void FTokenStore::Cancel()
{
	Call.Reset();
	NextTurn.Reset();
}

void FTokenStore::Later(TFunction<void()> Action)
{
	Call.Reset();
	NextTurn = MakeUnique<FNextTurn>(::MoveTemp(Action));
	NextTurn->Ask();
}
