// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ConversationRepository.h"

#include "Chat/ConversationTitle.h"
#include "Chat/StoredMessage.h"

FConversationRepository::FConversationRepository() = default;
FConversationRepository::~FConversationRepository() = default;

void FConversationRepository::Open(const FString& File)
{
	if (!File.IsEmpty())
	{
		Archive = FConversationArchive::Open(File);
	}
	if (Archive)
	{
		Archive->OnForeignChange = [this]
		{
			OnForeignChange();
		};
		TArray<FConversationRecord> Records;
		Archive->ReadConversations(Records);
		MergeList(Records);
	}
}

void FConversationRepository::Close()
{
	Archive.Reset();
}

UStoredConversation* FConversationRepository::Create(const FString& ModeName)
{
	UStoredConversation* const Conversation = NewObject<UStoredConversation>();
	Conversation->Id = FConversationRecord::MakeId();
	Conversation->ModeName = ModeName;
	Conversation->bLoaded = true;
	return Conversation;
}

UStoredConversation* FConversationRepository::Find(const FString& Id) const
{
	const TObjectPtr<UStoredConversation>* const Found =
		Conversations.FindByPredicate([&Id](const TObjectPtr<UStoredConversation>& Conversation) { return Conversation->Id == Id; });
	return Found ? Found->Get() : nullptr;
}

void FConversationRepository::Load(UStoredConversation& Conversation)
{
	if (!Conversation.bLoaded && Archive)
	{
		TArray<FMessageRecord> Records;
		Conversation.bLoaded = Archive->ReadMessages(Conversation.Id, Records);
		Conversation.SetMessageRecords(Records);
	}
}

void FConversationRepository::Release(UStoredConversation& Conversation)
{
	if (Conversation.bStored && Archive && Archive->IsSettled())
	{
		Conversation.Messages.Empty();
		Conversation.bLoaded = false;
	}
}

bool FConversationRepository::Use(UStoredConversation& Conversation, const FString& UserText)
{
	const int32 Place = Conversations.Find(&Conversation);
	Conversation.LastUsed = GetCurrentTime();
	if (Place == INDEX_NONE)
	{
		Conversation.Title = MakeConversationTitle(UserText);
		Conversation.Created = Conversation.LastUsed;
	}
	else
	{
		Conversations.RemoveAt(Place);
	}
	Conversations.Insert(&Conversation, 0);
	return Place != 0;
}

void FConversationRepository::Append(UStoredConversation& Conversation, UStoredMessage* Message, const FMessageRow& Row)
{
	Conversation.Messages.Add(Message);
	if (!Archive)
	{
		return;
	}
	if (Conversation.bStored)
	{
		Archive->PutMessage(Conversation.GetRecord(), Message->GetRecord(), Row);
	}
	else
	{
		Archive->AddConversation(Conversation.GetRecord(), Message->GetRecord());
		Conversation.bStored = true;
	}
	Archive->Settle();
}

void FConversationRepository::StoreGrowth(const UStoredConversation& Conversation, const FString& Answer, const FMessageRow& Row)
{
	if (Archive)
	{
		Archive->PutMessage(Conversation.GetRecord(), {EChatRole::Assistant, Answer, NullOpt}, Row);
	}
}

void FConversationRepository::SetMode(UStoredConversation& Conversation, const FString& ModeName)
{
	Conversation.ModeName = ModeName;
	if (Archive && Conversation.bStored)
	{
		Archive->SetMode(Conversation.Id, ModeName);
	}
}

void FConversationRepository::Remove(UStoredConversation& Conversation)
{
	if (Archive && Conversation.bStored)
	{
		Archive->Delete(Conversation.Id);
	}
	Conversations.Remove(&Conversation);
	Conversation.MarkAsGarbage();
}

bool FConversationRepository::Merge(UStoredConversation& Open)
{
	if (!Archive || !Archive->IsSettled())
	{
		MergeLater();
		return false;
	}
	TArray<FConversationRecord> Records;
	if (!Archive->ReadConversations(Records))
	{
		return false;
	}
	const bool bListChanged = MergeList(Records);
	for (const TObjectPtr<UStoredConversation>& Conversation : Conversations)
	{
		if (Conversation != &Open)
		{
			Release(*Conversation);
		}
	}
	return (IsValid(&Open) && Open.bStored && MergeMessages(Open)) || bListChanged;
}

void FConversationRepository::MergeLater()
{
	if (Archive)
	{
		Archive->RepeatForeignChange();
	}
}

bool FConversationRepository::MergeList(const TArray<FConversationRecord>& Records)
{
	TMap<FString, TObjectPtr<UStoredConversation>> Known;
	for (const TObjectPtr<UStoredConversation>& Conversation : Conversations)
	{
		Known.Add(Conversation->Id, Conversation);
	}
	TArray<TObjectPtr<UStoredConversation>> Merged;
	bool bFieldChanged = false;
	for (const FConversationRecord& Record : Records)
	{
		const TObjectPtr<UStoredConversation>* const Old = Known.Find(Record.Id);
		bFieldChanged |= Old && (*Old)->SetRecord(Record);
		Merged.Add(Old ? *Old : TObjectPtr<UStoredConversation>(UStoredConversation::Make(Record)));
		Merged.Last()->bStored = true;
		Known.Remove(Record.Id);
	}
	for (const auto& [Id, Gone] : Known)
	{
		Gone->MarkAsGarbage();
	}
	const bool bChanged = bFieldChanged || !(Merged == Conversations);
	Conversations = ::MoveTemp(Merged);
	return bChanged;
}

bool FConversationRepository::MergeMessages(UStoredConversation& Conversation)
{
	TArray<FMessageRecord> Records;
	if (!Archive->ReadMessages(Conversation.Id, Records))
	{
		return false;
	}
	for (FMessageRecord& Record : Records)
	{
		Record.End = Record.End.Get(EAnswerEnd::Complete);
	}
	Conversation.bLoaded = true;
	const bool bChanged = !(Records == Conversation.GetMessageRecords());
	if (bChanged)
	{
		Conversation.SetMessageRecords(Records);
	}
	return bChanged;
}
