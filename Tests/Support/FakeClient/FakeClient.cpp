// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/FakeClient/FakeClient.h"

namespace
{

FFakeClient* CurrentClient = nullptr;

} // namespace

const FString UChatService::DefaultAgentChatModeName = TEXT("Default Agent");
const TCHAR* const FFakeClient::AutopilotMode = TEXT("Autopilot");
const TCHAR* const FFakeClient::ReagentMode = TEXT("Reagent Lab");

bool UChatService::IsChatModeNameAnAgent(const FString& ModeName)
{
	return ModeName == DefaultAgentChatModeName || ModeName == FFakeClient::AutopilotMode;
}

FVorelClient& FVorelClient::Get()
{
	checkf(CurrentClient != nullptr, TEXT("FVorelClient::Get was called, and the test has no FFakeClient"));
	return *CurrentClient;
}

void FFakeCalls::Allow(const FString& Name, FAction Action)
{
	Allowed.Add(Name, MoveTemp(Action));
}

void FFakeCalls::Record(const FString& Name, const FString& Argument)
{
	const FAction* Found = Allowed.Find(Name);
	checkf(Found != nullptr, TEXT("%s(%s) was called, and the test did not allow it"), *Name, *Argument);
	Recorded += FString::Printf(TEXT("%s%s(%s)"), Recorded.IsEmpty() ? TEXT("") : TEXT(" "), *Name, *Argument);
	// A copy, since the action may change what is allowed.
	const FAction Action = *Found;
	if (Action)
	{
		Action(Argument);
	}
}

FString FFakeCalls::Take()
{
	FString Result = MoveTemp(Recorded);
	Recorded.Reset();
	return Result;
}

TObjectPtr<UMessage> UFakeChatHistory::AddMessage(EChatRole Role, const TArray<FString>& Texts)
{
	const TObjectPtr<UMessage> Message = NewObject<UMessage>();
	Message->Role = Role;
	for (const FString& Text : Texts)
	{
		const TObjectPtr<UMessageContent> Content = NewObject<UMessageContent>();
		Content->Text = Text;
		Message->Contents.Add(Content);
	}
	Messages.Add(Message);
	return Message;
}

void UFakeChatService::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObjects(ChatHistories);
	Collector.AddReferencedObject(CurrentConversation);
}

template <typename ServiceType>
TObjectPtr<ServiceType> FFakeClient::MakeService()
{
	const TObjectPtr<ServiceType> Service = NewObject<ServiceType>();
	Service->Calls = Calls;
	Service->AddToRoot();
	Rooted.Add(Service);
	return Service;
}

FFakeClient::FFakeClient()
{
	check(CurrentClient == nullptr);
	CurrentClient = this;
	Chat = MakeService<UFakeChatService>();
	Auth = MakeService<UFakeAuthenticationService>();
	UserData = MakeService<UFakeUserDataService>();
	Update = MakeService<UFakeUpdateService>();
	Chat->CurrentChatModeName = TEXT("Ask");
	Chat->ChatModeNames = {TEXT("Ask"), UChatService::DefaultAgentChatModeName, AutopilotMode, ReagentMode};
	OpenHistory(TEXT("first"));
	Calls->Allow(TEXT("CheckForUpdates"));
	Calls->Allow(TEXT("GetUserData"));
}

FFakeClient::~FFakeClient()
{
	for (const TObjectPtr<UObject>& Object : Rooted)
	{
		Object->RemoveFromRoot();
		Object->MarkAsGarbage();
	}
	CurrentClient = nullptr;
}

TObjectPtr<UFakeChatHistory> FFakeClient::MakeHistory(const FString& Id)
{
	const TObjectPtr<UFakeChatHistory> History = NewObject<UFakeChatHistory>();
	History->Id = Id;
	History->Title = Id;
	Chat->ChatHistories.Add(History);
	return History;
}

TObjectPtr<UFakeChatHistory> FFakeClient::OpenHistory(const FString& Id)
{
	Conversation = MakeHistory(Id);
	Chat->CurrentConversation = Conversation;
	return Conversation;
}

void FFakeClient::AddMessage(EChatRole Role, const FString& Text)
{
	Chat->OnMessageAdded.Broadcast(Conversation->AddMessage(Role, {Text}));
}

void FFakeClient::StartTurn(const FString& Question)
{
	Chat->bIsProcessingRequest = true;
	AddMessage(EChatRole::User, Question);
}

void FFakeClient::DeliverChunk(const FString& Chunk)
{
	Chat->OnChunkReceived.Broadcast(Chunk);
}

void FFakeClient::EndTurn(const FString& Answer)
{
	Chat->bIsProcessingRequest = false;
	AddMessage(EChatRole::Assistant, Answer);
	Chat->OnRequestCompleted.Broadcast();
}

void FFakeClient::FailTurn(const FString& Error)
{
	Chat->bIsProcessingRequest = false;
	Chat->OnRequestFailed.Broadcast(Error);
}

void FFakeClient::SetUserData(const FString& UserName, int32 Credits, bool bSuccess)
{
	UserData->UserData.UserName = UserName;
	UserData->UserData.Credits = Credits;
	UserData->OnUserDataChanged.Broadcast(UserData->UserData, bSuccess);
}
