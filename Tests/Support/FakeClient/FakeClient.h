// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "AuthenticationService.h"
#include "ChatService.h"
#include "SerializableChatHistory.h"
#include "UserDataService.h"
#include "VorelClient.h"
#include "VorelUpdateService.h"

// What the services were told to do, in order. A call that the test did not allow stops the test program with the call's name.
class FFakeCalls
{
public:
	using FAction = TFunction<void(const FString& Argument)>;

	void Allow(const FString& Name, FAction Action = {});

	void Record(const FString& Name, const FString& Argument = FString());

	// The calls since the last time, as "SendMessage(Hello) CheckForUpdates()".
	FString Take();

private:
	TMap<FString, FAction> Allowed;
	FString Recorded;
};

class UFakeChatHistory : public USerializableChatHistory
{
public:
	bool bIsValidHistory = true;
	FString Title;

	bool IsValidHistory() const override { return bIsValidHistory; }
	FString GetDisplayableTitle(bool bShorten, int32 MaxLength) override
	{
		return (bShorten ? FString() : FString(TEXT("whole "))) + Title.Left(MaxLength);
	}

	TObjectPtr<UMessage> AddMessage(EChatRole Role, const TArray<FString>& Texts);
};

class UFakeChatService : public UChatService
{
public:
	TSharedPtr<FFakeCalls> Calls;
	FString CurrentChatModeName;
	TArray<FString> ChatModeNames;
	TArray<TObjectPtr<USerializableChatHistory>> ChatHistories;
	TObjectPtr<USerializableChatHistory> CurrentConversation;

	FString GetCurrentChatModeName() const override { return CurrentChatModeName; }
	TArray<FString> GetChatModeNames() const override { return ChatModeNames; }
	TArray<TObjectPtr<USerializableChatHistory>> GetChatHistories() const override { return ChatHistories; }
	TObjectPtr<USerializableChatHistory> GetCurrentConversation() const override { return CurrentConversation; }
	void SetCurrentChatMode(const FString& ModeName) override { Calls->Record(TEXT("SetCurrentChatMode"), ModeName); }
	void LoadConversation(const FString& Id) override { Calls->Record(TEXT("LoadConversation"), Id); }
	void CreateNewConversation(const FString& ModeName) override { Calls->Record(TEXT("CreateNewConversation"), ModeName); }
	void DeleteChatHistory(const FString& Id) override { Calls->Record(TEXT("DeleteChatHistory"), Id); }
	void SendMessage(const FString& Text) override { Calls->Record(TEXT("SendMessage"), Text); }

	void AddReferencedObjects(FReferenceCollector& Collector) override;
};

class UFakeAuthenticationService : public UAuthenticationService
{
public:
	TSharedPtr<FFakeCalls> Calls;
	bool bIsAuthenticated = true;

	bool IsAuthenticated() const override { return bIsAuthenticated; }
	void StartLogin() override { Calls->Record(TEXT("StartLogin")); }
	void Logout() override { Calls->Record(TEXT("Logout")); }
};

class UFakeUserDataService : public UUserDataService
{
public:
	TSharedPtr<FFakeCalls> Calls;

	void GetUserData() override { Calls->Record(TEXT("GetUserData")); }
};

class UFakeUpdateService : public UVorelUpdateService
{
public:
	TSharedPtr<FFakeCalls> Calls;

	void CheckForUpdates() override { Calls->Record(TEXT("CheckForUpdates")); }
};

// A client that a test scripts: add this message, deliver this chunk, fail now, end the turn. FVorelClient::Get answers it while it lives.
// It starts with a signed-in user, an empty conversation in the mode "Ask", and allows what every tab does by itself: CheckForUpdates and
// GetUserData.
class FFakeClient : public FVorelClient
{
public:
	FFakeClient();
	~FFakeClient() override;

	// The mode that is an agent although its name does not say so.
	static const TCHAR* const AutopilotMode;
	// Not an agent mode although its name contains the word.
	static const TCHAR* const ReagentMode;

	TSharedRef<FFakeCalls> Calls = MakeShared<FFakeCalls>();

	// Tests may set one to null.
	TObjectPtr<UFakeChatService> Chat;
	TObjectPtr<UFakeAuthenticationService> Auth;
	TObjectPtr<UFakeUserDataService> UserData;
	TObjectPtr<UFakeUpdateService> Update;

	TObjectPtr<UFakeChatHistory> MakeHistory(const FString& Id);
	// Opens a new, empty conversation, without an event.
	TObjectPtr<UFakeChatHistory> OpenHistory(const FString& Id);

	void AddMessage(EChatRole Role, const FString& Text);
	void StartTurn(const FString& Question);
	void DeliverChunk(const FString& Chunk);
	void EndTurn(const FString& Answer);
	void FailTurn(const FString& Error);
	void SetUserData(const FString& UserName, int32 Credits, bool bSuccess = true);

	TObjectPtr<UChatService> GetChatService() const override { return Chat; }
	TObjectPtr<UAuthenticationService> GetAuthService() const override { return Auth; }
	TObjectPtr<UUserDataService> GetUserDataService() const override { return UserData; }
	TObjectPtr<UVorelUpdateService> GetUpdateService() const override { return Update; }

private:
	template <typename ServiceType>
	TObjectPtr<ServiceType> MakeService();

	TObjectPtr<UFakeChatHistory> Conversation;
	TArray<TObjectPtr<UObject>> Rooted;
};
