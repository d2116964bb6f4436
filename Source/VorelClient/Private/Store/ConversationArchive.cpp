// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include "Store/StoreWatch.h"

#include "Store/ConversationArchive.h"

#include "Containers/Ticker.h"
#include "Store/LogVorelStore.h"
#include "Store/StoreLock.h"
#include "Store/StoreWriter.h"

#define LOCTEXT_NAMESPACE "VorelClient"

DEFINE_LOG_CATEGORY(LogVorelStore);

// Long enough for a slow disk, and too short to be noticed.
static constexpr std::chrono::milliseconds LongestWait{250};

// All is read anew, and a program that streams an answer writes several times a second.
static constexpr float SecondsBetweenForeignChanges = 0.5f;

namespace
{
void Tell(const FStoreError& Error, const FString& File, const FText& Consequence)
{
	UE_CLOG(!Error.Detail.IsEmpty(), LogVorelStore, Log, TEXT("%s: %s"), *File, *Error.Detail);
	UE_LOG(LogVorelStore, Warning, TEXT("%s %s"), *Error.Describe(File).ToString(), *Consequence.ToString());
}

// Another program that runs on a damaged file, and perhaps has not come upon the damage, keeps it.
TUniquePtr<FConversationStore> OpenOrBeginAnew(const FString& File, const FStoreLock& Lock, FStoreError& OutError)
{
	TUniquePtr<FConversationStore> Store = FConversationStore::Open(File, FConversationStore::EMissingFile::Create, OutError);
	if (OutError.Problem != EStoreProblem::Damaged || !Lock.IsAlone())
	{
		return Store;
	}
	const FString NewName = FConversationStore::SetAside(File);
	if (!NewName.IsEmpty())
	{
		Tell(OutError, File,
			FText::Format(LOCTEXT("SetAside", "It was set aside as {0}, and a new one was begun."), FText::FromString(NewName)));
		Store = FConversationStore::Open(File, FConversationStore::EMissingFile::Create, OutError);
	}
	return Store;
}
} // namespace

struct FConversationArchive::FParts
{
	FParts(const FString& InFile, TUniquePtr<FStoreLock> InLock, TUniquePtr<FConversationStore> InReader,
		TUniquePtr<FConversationStore> InWritten)
		: File(InFile)
		, Lock(::MoveTemp(InLock))
		, Reader(::MoveTemp(InReader))
		, Writer(::MoveTemp(InWritten))
		, Watch(InFile)
	{
	}

	~FParts() { FTSTicker::RemoveTicker(Frame); }

	void Write(TFunction<FStoreError(FConversationStore&)> Run, std::shared_ptr<void> Subject = nullptr)
	{
		Writer.Write({::MoveTemp(Run), ::MoveTemp(Subject)});
	}

	bool CheckRead(const FStoreError& Error) const
	{
		if (Error)
		{
			Tell(Error, File, LOCTEXT("NotRead", "A part of what it holds can't be shown."));
		}
		return !Error;
	}

	FString File;
	// Given back last.
	TUniquePtr<FStoreLock> Lock;
	TUniquePtr<FConversationStore> Reader;
	FStoreWriter Writer;
	FStoreWatch Watch;
	FTSTicker::FDelegateHandle Frame;
};

TUniquePtr<FConversationArchive> FConversationArchive::Open(const FString& File)
{
	FStoreError Error;
	TUniquePtr<FStoreLock> Lock = MakeUnique<FStoreLock>(File);
	Lock->Take();
	TUniquePtr<FConversationStore> Reader = OpenOrBeginAnew(File, *Lock, Error);
	TUniquePtr<FConversationStore> Written = Reader ? FConversationStore::OpenAgain(File, Error) : nullptr;
	if (!Written)
	{
		Tell(Error, File, LOCTEXT("MemoryOnly", "The conversations of this run are kept in memory, and end with it."));
		return nullptr;
	}
	Lock->Share();
	return TUniquePtr<FConversationArchive>(
		new FConversationArchive(MakeUnique<FParts>(File, ::MoveTemp(Lock), ::MoveTemp(Reader), ::MoveTemp(Written))));
}

FConversationArchive::FConversationArchive(TUniquePtr<FParts> InParts)
	: Parts(::MoveTemp(InParts))
{
	Parts->Writer.OnTrouble = [File = Parts->File](const FStoreError& Error)
	{
		if (Error.Problem == EStoreProblem::Damaged)
		{
			Tell(Error, File, LOCTEXT("NotWrittenAnyMore", "What is new is kept in memory, and ends with this run."));
		}
		else if (Error)
		{
			Tell(Error, File, LOCTEXT("NotWritten", "What is new is kept in memory until it can be stored."));
		}
		else
		{
			UE_LOG(LogVorelStore, Display, TEXT("%s"), *LOCTEXT("WrittenAgain", "All messages are stored again.").ToString());
		}
	};
	Parts->Writer.OnForeignChange = [this]
	{
		RepeatForeignChange();
	};
	Parts->Watch.OnLook = [this]
	{
		Parts->Writer.LookForForeignChange(false);
	};
	if (Parts->Reader->InterruptGrowingAnswers())
	{
		Parts->Write([](FConversationStore& Store) { return Store.InterruptGrowingAnswers(); });
	}
}

FConversationArchive::~FConversationArchive() = default;

bool FConversationArchive::ReadConversations(TArray<FConversationRecord>& OutConversations)
{
	return Parts->CheckRead(Parts->Reader->ReadConversations(OutConversations));
}

bool FConversationArchive::ReadMessages(const FString& Id, TArray<FMessageRecord>& OutMessages)
{
	return Parts->CheckRead(Parts->Reader->ReadMessages(Id, OutMessages));
}

void FConversationArchive::AddConversation(const FConversationRecord& Conversation, const FMessageRecord& FirstMessage)
{
	Parts->Write([Conversation, FirstMessage](FConversationStore& Store) { return Store.AddConversation(Conversation, {FirstMessage}); });
}

void FConversationArchive::PutMessage(const FConversationRecord& Conversation, const FMessageRecord& Message, const FMessageRow& Row)
{
	Parts->Write([Conversation, Message, Row](FConversationStore& Store) { return Store.PutMessage(Conversation, Message, *Row); }, Row);
}

void FConversationArchive::SetMode(const FString& Id, const FString& ModeName)
{
	Parts->Write([Id, ModeName](FConversationStore& Store) { return Store.SetMode(Id, ModeName); });
}

void FConversationArchive::Delete(const FString& Id)
{
	Parts->Write(
		[Id](FConversationStore& Store)
		{
			bool bFound;
			return Store.Delete(Id, bFound);
		});
}

void FConversationArchive::Settle()
{
	Parts->Writer.WaitUntilIdle(LongestWait);
}

bool FConversationArchive::IsSettled() const
{
	return Parts->Writer.IsIdle();
}

void FConversationArchive::RepeatForeignChange()
{
	if (!IsSettled())
	{
		Parts->Writer.LookForForeignChange(true);
	}
	else if (!Parts->Frame.IsValid())
	{
		Parts->Frame = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda(
																[this](float)
																{
																	Parts->Frame.Reset();
																	OnForeignChange();
																	return false;
																}),
			SecondsBetweenForeignChanges);
	}
}

#undef LOCTEXT_NAMESPACE
