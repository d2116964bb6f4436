// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "VorelClientServices.h"

#include "Account/InstalledUpdateService.h"
#include "Account/LocalAuthenticationService.h"
#include "Account/LocalUserDataService.h"
#include "Http/JsonText.h"
#include "Chat/HttpChatService.h"
#include "DataFolder.h"
#include "LocalService.h"
#include "LogVorel.h"
#include "Misc/Paths.h"
#include "VorelClientOptions.h"
#include "VorelUserSettings.h"
#include <cstdlib>

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
	, AuthService(MakeRooted<ULocalAuthenticationService>())
	, UserDataService(MakeRooted<ULocalUserDataService>())
	, UpdateService(MakeRooted<UInstalledUpdateService>())
{
	const FString Folder = FDataFolder::Get();
	ChatService->Initialize(ChooseEndpoint(), ReadLimits(), Folder.IsEmpty() ? FString() : Folder / FConversationStore::FileName);
}

FVorelClientServices::~FVorelClientServices()
{
	ChatService->Shutdown();
	for (UObject* const Service : TArray<UObject*>{ChatService, AuthService, UserDataService, UpdateService})
	{
		Service->RemoveFromRoot();
	}
}

TObjectPtr<UChatService> FVorelClientServices::GetChatService() const
{
	return ChatService;
}

FAssistantEndpoint FVorelClientServices::ChooseEndpoint()
{
	const FVorelClientOptions& Options = FVorelClientOptions::Get();
	const FVorelSettingsValues& Settings = UVorelUserSettings::Get()->GetValues();
	FAssistantEndpoint Endpoint;
	Endpoint.BaseUrl = Options.AssistantUrl.IsEmpty() ? Settings.AssistantUrl : Options.AssistantUrl;
	if (Endpoint.BaseUrl.IsEmpty())
	{
		return StartLocalService();
	}
	// A model from the settings belongs to the server from the settings.
	const bool bFromSettings = Options.AssistantUrl.IsEmpty() && Options.Model.IsEmpty();
	Endpoint.Model = bFromSettings ? Settings.AssistantModel : Options.Model;
	const char* const Key = std::getenv("VOREL_ASSISTANT_KEY");
	Endpoint.ApiKey = FString(Key ? Key : "").TrimStartAndEnd();
	return Endpoint;
}

FAssistantEndpoint FVorelClientServices::StartLocalService()
{
	FLocalServiceOptions Options;
	Options.GuideFolder = ToUtf8(FPaths::ProjectDir() / TEXT("Source/VorelService/Content/Guide"));
	const int32 Pace = FVorelClientOptions::Get().GuidePieceMilliseconds;
	Options.PieceInterval = Pace < 0 ? Options.PieceInterval : std::chrono::milliseconds(Pace);

	std::string Error;
	LocalService = FLocalService::Start(Options, Error);
	FAssistantEndpoint Endpoint;
	if (!LocalService)
	{
		UE_LOG(LogVorel, Error, TEXT("The local service did not start: %s"), *FromUtf8(Error));
		Endpoint.Unavailable = LOCTEXT("NoLocalService", "The built-in assistant could not be started. The log tells why.");
		return Endpoint;
	}
	const FString Address = FromUtf8(LocalService->GetAddress());
	UVorelUserSettings::Get()->SetDefaultAppUrl(Address);
	Endpoint.BaseUrl = Address / TEXT("v1");
	return Endpoint;
}

#undef LOCTEXT_NAMESPACE
