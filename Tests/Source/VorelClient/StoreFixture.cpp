// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "StoreFixture.h"

UHttpChatService& FStoreTest::StartOther()
{
	UHttpChatService& Other = Others.emplace_back().Make();
	Other.Initialize(Endpoint, Limits, StoreFile);
	return Other;
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
