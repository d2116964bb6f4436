// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "VorelClientServices.h"

#include "Account/LoginOptions.h"
#include "Account/OAuthAuthenticationService.h"
#include "Http/JsonText.h"
#include "Chat/HttpChatService.h"
#include "DataFolder.h"
#include "Interfaces/IPluginManager.h"
#include "LocalService.h"
#include "LogVorel.h"
#include "Misc/Paths.h"
#include "Update/VersionFeedUpdateService.h"
#include "UserData/VorelUserDataService.h"
#include "VorelClientOptions.h"
#include "VorelUserSettings.h"
#include <cstdlib>
#include <filesystem>

#define LOCTEXT_NAMESPACE "VorelClient"

namespace
{
FVorelClientOptions& GetOptions()
{
	static FVorelClientOptions Options;
	return Options;
}

FRequestLimits ReadLimits()
{
	const FVorelSettingsValues& Values = UVorelUserSettings::Get()->GetValues();
	return {Values.ConnectTimeoutSeconds, Values.FirstByteTimeoutSeconds, Values.IdleTimeoutSeconds};
}

FString GetInstalledVersion()
{
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("VorelAI"));
	return Plugin ? Plugin->GetDescriptor().VersionName : FString();
}

// In the data folder; empty where there is none.
FString GetDataFile(const TCHAR* Name)
{
	const FString Folder = FDataFolder::Get();
	return Folder.IsEmpty() ? FString() : Folder / Name;
}

FString MakeCanonical(const FString& Folder)
{
	std::error_code Error;
	const std::filesystem::path Path = std::filesystem::weakly_canonical(*Folder, Error);
	return Error ? Folder : FString(Path.u16string().c_str());
}

// Whose tokens are none of the embedded service's.
bool HasForeignIssuer()
{
	const FVorelClientOptions& Options = FVorelClientOptions::Get();
	return !Options.Issuer.IsEmpty() && Options.ServiceUrl.IsEmpty();
}

// Out of the environment, which is handed on to the browser.
FString TakeAssistantKey()
{
	constexpr const char* Name = "VOREL_ASSISTANT_KEY";
	const char* const Key = std::getenv(Name);
	const FString Taken = FString(Key ? Key : "").TrimStartAndEnd();
	::unsetenv(Name);
	return Taken;
}

template <class T>
TObjectPtr<T> MakeRooted()
{
	T* const Service = NewObject<T>();
	Service->AddToRoot();
	return Service;
}
} // namespace

void FVorelClientOptions::Set(const FVorelClientOptions& Options)
{
	GetOptions() = Options;
}

const FVorelClientOptions& FVorelClientOptions::Get()
{
	return GetOptions();
}

FVorelClientServices::FVorelClientServices()
	: ChatService(MakeRooted<UHttpChatService>())
	, AuthService(MakeRooted<UOAuthAuthenticationService>())
	, UserDataService(MakeRooted<UVorelUserDataService>())
	, UpdateService(MakeRooted<UVersionFeedUpdateService>())
{
	const FVorelClientOptions& Options = FVorelClientOptions::Get();
	const bool bEmbedded = Options.ServiceUrl.IsEmpty();
	const FString AssistantKey = TakeAssistantKey();
	ServiceUrl = bEmbedded ? StartLocalService() : Options.ServiceUrl;
	UVorelUserSettings::Get()->SetDefaultAppUrl(ServiceUrl);

	AuthService->Initialize(MakeLoginOptions());
	ChatService->OnCreditsSpent = [this]
	{
		UserDataService->AskAgain();
	};
	ChatService->Initialize(ChooseAssistant(AssistantKey), ReadLimits(), GetDataFile(FConversationStore::FileName));
	FAuthorizationMetadata* const Issuer = Options.Issuer.IsEmpty() ? nullptr : &AuthService->GetMetadata();
	UserDataService->Initialize({ServiceUrl, &GetServiceTokens(), Issuer, &AuthService->GetTokens()}, *AuthService);
	UpdateService->Initialize(
		// The embedded service announces no version but this one.
		{bEmbedded ? FString() : ServiceUrl, GetDataFile(FVersionFeedNote::FileName)}, GetInstalledVersion());
}

FVorelClientServices::~FVorelClientServices()
{
	ChatService->Shutdown();
	UserDataService->Shutdown();
	UpdateService->Shutdown();
	AuthService->Shutdown();
	for (UObject* const Service : TArray<UObject*>{ChatService, AuthService, UserDataService, UpdateService})
	{
		Service->RemoveFromRoot();
	}
}

TObjectPtr<UChatService> FVorelClientServices::GetChatService() const
{
	return ChatService;
}

TObjectPtr<UAuthenticationService> FVorelClientServices::GetAuthService() const
{
	return AuthService;
}

TObjectPtr<UUserDataService> FVorelClientServices::GetUserDataService() const
{
	return UserDataService;
}

TObjectPtr<UVorelUpdateService> FVorelClientServices::GetUpdateService() const
{
	return UpdateService;
}

FAssistantEndpoint FVorelClientServices::ChooseAssistant(const FString& Key)
{
	const FVorelClientOptions& Options = FVorelClientOptions::Get();
	const FVorelSettingsValues& Settings = UVorelUserSettings::Get()->GetValues();
	FAssistantEndpoint Endpoint;
	Endpoint.BaseUrl = Options.AssistantUrl.IsEmpty() ? Settings.AssistantUrl : Options.AssistantUrl;
	if (Endpoint.BaseUrl.IsEmpty())
	{
		UE_CLOG(!Options.Model.IsEmpty(), LogVorel, Warning, TEXT("The model \"%s\" is not used: there is no --assistant to ask for it."),
			*Options.Model);
		return MakeOwnAssistant();
	}
	// A model from the settings belongs to the server from the settings.
	const bool bFromSettings = Options.AssistantUrl.IsEmpty() && Options.Model.IsEmpty();
	Endpoint.Model = bFromSettings ? Settings.AssistantModel : Options.Model;
	Endpoint.ApiKey = Key;
	return Endpoint;
}

FAssistantEndpoint FVorelClientServices::MakeOwnAssistant()
{
	FAssistantEndpoint Endpoint;
	Endpoint.Unavailable =
		ServiceUrl.IsEmpty() ? LOCTEXT("NoLocalService", "The built-in assistant could not be started. The log tells why.") : FText();
	Endpoint.BaseUrl = ServiceUrl / TEXT("v1");
	Endpoint.BillingUrl = UVorelUserSettings::Get()->GetAppUrl() + TEXT("/billing");
	Endpoint.Tokens = &GetServiceTokens();
	return Endpoint;
}

IAccessTokenSource& FVorelClientServices::GetServiceTokens()
{
	return HasForeignIssuer() ? OwnerKey : AuthService->GetTokens();
}

FLoginOptions FVorelClientServices::MakeLoginOptions() const
{
	const FVorelClientOptions& Options = FVorelClientOptions::Get();
	const bool bOwnLogin = LocalService && Options.Issuer.IsEmpty();
	// A login at an account that ends with this run is no other's successor.
	const FString Folder = bOwnLogin && bAccountInMemory ? FString() : FDataFolder::Get();
	const char* const Store = std::getenv("VOREL_SECRET_STORE");
	FLoginOptions Login;
	Login.Issuer = Options.Issuer.IsEmpty() ? ServiceUrl : Options.Issuer;
	Login.ClientId = Options.Issuer.IsEmpty() ? FString(TEXT("vorel-editor")) : Options.ClientId;
	Login.DataFolder = Folder;
	// The embedded service has another port each time. Each data folder has a login of its own.
	Login.KeyringAccount =
		(bOwnLogin ? FString(TEXT("local")) : Login.Issuer + TEXT(" ") + Login.ClientId) + TEXT(" ") + MakeCanonical(Folder);
	Login.bUseKeyring = !Folder.IsEmpty() && !(Store && FString(Store) == TEXT("none"));
	Login.bAllowTokenFile = UVorelUserSettings::Get()->GetValues().bAllowTokenFile;
	return Login;
}

// Empty where it does not start.
FString FVorelClientServices::StartLocalService()
{
	const FVorelClientOptions& Chosen = FVorelClientOptions::Get();
	FLocalServiceOptions Options;
	Options.GuideFolder = ToUtf8(FPaths::ProjectDir() / TEXT("Source/VorelService/Content/Guide"));
	Options.PieceInterval =
		Chosen.GuidePieceMilliseconds < 0 ? Options.PieceInterval : std::chrono::milliseconds(Chosen.GuidePieceMilliseconds);
	Options.OwnerKey = HasForeignIssuer() ? ToUtf8(OwnerKey.Get()) : std::string();
	Options.DataFile = ToUtf8(GetDataFile(TEXT("service.sqlite")));
	Options.Version = ToUtf8(GetInstalledVersion());
	Options.DailyCredits = Chosen.DailyCredits.Get(Options.DailyCredits);

	std::string Error;
	LocalService = FLocalService::Start(Options, Error);
	bAccountInMemory = Options.DataFile.empty();
	if (!LocalService && !bAccountInMemory)
	{
		bAccountInMemory = true;
		UE_LOG(LogVorel, Warning, TEXT("The local service keeps its account in memory, for this run: %s"), *FromUtf8(Error));
		Options.DataFile.clear();
		LocalService = FLocalService::Start(Options, Error);
	}
	UE_CLOG(!LocalService, LogVorel, Error, TEXT("The local service did not start: %s"), *FromUtf8(Error));
	return LocalService ? FromUtf8(LocalService->GetAddress()) : FString();
}

#undef LOCTEXT_NAMESPACE
