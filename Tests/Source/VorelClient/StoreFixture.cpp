// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "StoreFixture.h"

TObjectPtr<UHttpChatService> FStoreTest::StartOther()
{
	Others.Add(NewObject<UHttpChatService>());
	Others.Last()->AddToRoot();
	Others.Last()->Initialize(Endpoint, Limits, StoreFile);
	return Others.Last();
}

FStoreTest::~FStoreTest()
{
	EndService();
	for (const TObjectPtr<UHttpChatService>& Other : Others)
	{
		Other->Shutdown();
		Other->RemoveFromRoot();
	}
}

FString FStoreTest::GetTitles(const UChatService& Chat)
{
	TArray<FString> Titles;
	for (const TObjectPtr<USerializableChatHistory>& History : Chat.GetChatHistories())
	{
		Titles.Add(History->GetDisplayableTitle(false, 1000));
	}
	return FString::Join(Titles, TEXT("|"));
}

FString FStoreTest::GetTexts(const UChatService& Chat)
{
	TArray<FString> Texts;
	for (const TObjectPtr<UMessage>& Message : Chat.GetCurrentConversation()->Messages)
	{
		Texts.Add(Message->Contents[0]->Text);
	}
	return FString::Join(Texts, TEXT("|"));
}

FString FStoreTest::ReadFile(const FString& Id) const
{
	static const TCHAR* const Ends[] = {TEXT("complete"), TEXT("cut"), TEXT("filtered"), TEXT("interrupted")};
	FStoreError Error;
	const TUniquePtr<FConversationStore> Store = FConversationStore::OpenAgain(StoreFile, Error);
	TArray<FMessageRecord> Messages;
	EXPECT_FALSE(Error || Store->ReadMessages(Id, Messages)) << Error.Detail;
	TArray<FString> Texts;
	for (const FMessageRecord& Message : Messages)
	{
		const TCHAR* const End = Message.End ? Ends[static_cast<int32>(*Message.End)] : TEXT("growing");
		Texts.Add(FString::Printf(TEXT("%s(%s)"), Message.Role == EChatRole::User ? TEXT("user") : End, *Message.Text));
	}
	return FString::Join(Texts, TEXT(" "));
}

FScriptedServer::FHandler Begin(const QByteArray& JsonText)
{
	return [JsonText](const FExchange& Exchange)
	{
		Exchange.SendStreamHead();
		Exchange.Send(MakeDelta(JsonText));
	};
}
