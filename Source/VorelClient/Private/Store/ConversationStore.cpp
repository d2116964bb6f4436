// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ConversationStore.h"

#include "Store/ConversationSchema.h"
#include "Store/SqliteDatabase.h"
#include "Store/StoreSchema.h"
#include <ctime>
#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

const TCHAR* const FConversationStore::FileName = TEXT("conversations.sqlite");

struct FConversationStore::FStatements
{
	explicit FStatements(FSqliteDatabase& Database)
		: ReadConversations(
			  Database, "SELECT id, title, mode, created, last_used FROM conversations ORDER BY last_used DESC, created DESC, id")
		, ReadMessages(Database, "SELECT role, text, ending FROM messages WHERE conversation = ? ORDER BY id")
		, AddConversation(Database, "INSERT INTO conversations(id, title, mode, created, last_used) VALUES (?, ?, ?, ?, ?)")
		, UseConversation(Database, "UPDATE conversations SET last_used = max(last_used, ?) WHERE id = ?")
		, AddMessage(Database, "INSERT INTO messages(conversation, role, text, ending) VALUES (?, ?, ?, ?)")
		, ChangeMessage(Database, "UPDATE messages SET text = ?, ending = ? WHERE id = ?")
		, SetMode(Database, "UPDATE conversations SET mode = ? WHERE id = ?")
		, Delete(Database, "DELETE FROM conversations WHERE id = ?")
		, HasGrowing(Database, "SELECT EXISTS(SELECT 1 FROM messages WHERE ending IS NULL)")
		, InterruptGrowing(Database, "UPDATE messages SET ending = ? WHERE ending IS NULL")
		, ReadDataVersion(Database, "PRAGMA data_version")
	{
	}

	FSqliteStatement ReadConversations;
	FSqliteStatement ReadMessages;
	FSqliteStatement AddConversation;
	FSqliteStatement UseConversation;
	FSqliteStatement AddMessage;
	FSqliteStatement ChangeMessage;
	FSqliteStatement SetMode;
	FSqliteStatement Delete;
	FSqliteStatement HasGrowing;
	FSqliteStatement InterruptGrowing;
	FSqliteStatement ReadDataVersion;
};

namespace
{
FStoreError Try(TFunctionRef<void()> Work)
{
	try
	{
		Work();
		return FStoreError();
	}
	catch (const FStoreError& Error)
	{
		return Error;
	}
}

fs::path ToPath(const FString& File)
{
	return fs::path(TCHAR_TO_UTF8(File));
}

fs::path AddSuffix(fs::path Path, const char* Suffix)
{
	return Path += Suffix;
}

// What SQLite itself would not tell, or not by a clear name.
FStoreError FindObstacle(const FString& File, FConversationStore::EMissingFile MissingFile)
{
	std::error_code Error;
	const fs::path Path = ToPath(File);
	const bool bExists = fs::exists(Path, Error);
	if (!bExists && (MissingFile == FConversationStore::EMissingFile::Refuse || !fs::exists(Path.parent_path(), Error)))
	{
		return {EStoreProblem::Missing, FString()};
	}
	// The log and its index are made beside the file.
	if (::euidaccess(Path.parent_path().c_str(), W_OK | X_OK) != 0 || (bExists && ::euidaccess(Path.c_str(), R_OK | W_OK) != 0))
	{
		return {EStoreProblem::ReadOnly, FString()};
	}
	// A file that is empty or gone counts as new, and its log would be thrown away.
	const fs::path Log = AddSuffix(Path, "-wal");
	if ((!bExists || fs::file_size(Path, Error) == 0) && fs::exists(Log, Error) && fs::file_size(Log, Error) > 0)
	{
		return {EStoreProblem::Damaged, TEXT("there is nothing but its log")};
	}
	return FStoreError();
}

EChatRole ToRole(int64 Number)
{
	return Number == 1 ? EChatRole::Assistant : Number == 2 ? EChatRole::System : EChatRole::User;
}

EAnswerEnd ToAnswerEnd(int64 Number)
{
	return Number < 0 || Number > static_cast<int64>(EAnswerEnd::Failed) ? EAnswerEnd::Failed : static_cast<EAnswerEnd>(Number);
}

int64 ReadOne(FSqliteStatement& Statement)
{
	Statement.Next();
	const int64 Number = Statement.GetNumber(0);
	Statement.Reset();
	return Number;
}

// Once for each message.
void ThrowDeleted(int64& InOutRow)
{
	constexpr int64 RowOfNobody = -1;
	if (std::exchange(InOutRow, RowOfNobody) != RowOfNobody)
	{
		throw FStoreError{EStoreProblem::Conflict, TEXT("another program has deleted the conversation")};
	}
}

TOptional<int64> ToNumber(const TOptional<EAnswerEnd>& End)
{
	return End ? TOptional<int64>(static_cast<int64>(*End)) : TOptional<int64>();
}
} // namespace

TUniquePtr<FConversationStore> FConversationStore::Open(const FString& File, EMissingFile MissingFile, FStoreError& OutError)
{
	TUniquePtr<FConversationStore> Store;
	OutError = FindObstacle(File, MissingFile);
	if (!OutError)
	{
		OutError = Try(
			[&]
			{
				TUniquePtr<FSqliteDatabase> Database = MakeUnique<FSqliteDatabase>(File, MissingFile == EMissingFile::Create);
				PrepareStore(*Database, File, GetConversationSchema());
				Store.Reset(new FConversationStore(::MoveTemp(Database)));
			});
	}
	return Store;
}

TUniquePtr<FConversationStore> FConversationStore::OpenAgain(const FString& File, FStoreError& OutError)
{
	TUniquePtr<FConversationStore> Store;
	OutError = Try(
		[&]
		{
			TUniquePtr<FSqliteDatabase> Database = MakeUnique<FSqliteDatabase>(File, false);
			ConfigureStore(*Database);
			Database->MergeLogOnClose();
			Store.Reset(new FConversationStore(::MoveTemp(Database)));
		});
	return Store;
}

FString FConversationStore::SetAside(const FString& File)
{
	char Time[32] = {};
	const std::time_t Now = std::time(nullptr);
	std::strftime(Time, sizeof(Time), ".damaged-%Y%m%d-%H%M%S", std::gmtime(&Now));
	std::error_code Error;
	fs::path Target = AddSuffix(ToPath(File), Time);
	while (fs::exists(Target, Error))
	{
		Target += "+";
	}
	fs::rename(ToPath(File), Target, Error);
	if (Error && Error != std::errc::no_such_file_or_directory)
	{
		return FString();
	}
	for (const char* const Suffix : {"-wal", "-shm", "-journal"})
	{
		fs::rename(AddSuffix(ToPath(File), Suffix), AddSuffix(Target, Suffix), Error);
	}
	return FString(Target.c_str());
}

FConversationStore::FConversationStore(TUniquePtr<FSqliteDatabase> InDatabase)
	: Database(::MoveTemp(InDatabase))
	, Statements(MakeUnique<FStatements>(*Database))
	, DataVersion(Database->ReadNumber("PRAGMA data_version"))
{
}

// Each statement goes before the connection it belongs to.
FConversationStore::~FConversationStore() = default;

FStoreError FConversationStore::ReadConversations(TArray<FConversationRecord>& OutConversations)
{
	return Try(
		[&]
		{
			FSqliteStatement& Rows = Statements->ReadConversations;
			while (Rows.Next())
			{
				OutConversations.Add({Rows.GetText(0), Rows.GetText(1), Rows.GetText(2), Rows.GetNumber(3), Rows.GetNumber(4)});
			}
		});
}

FStoreError FConversationStore::ReadMessages(const FString& Id, TArray<FMessageRecord>& OutMessages)
{
	return Try(
		[&]
		{
			FSqliteStatement& Rows = Statements->ReadMessages.Bind(Id);
			while (Rows.Next())
			{
				const TOptional<EAnswerEnd> End = Rows.IsNull(2) ? TOptional<EAnswerEnd>() : ToAnswerEnd(Rows.GetNumber(2));
				OutMessages.Add({ToRole(Rows.GetNumber(0)), Rows.GetText(1), End});
			}
		});
}

FStoreError FConversationStore::AddConversation(const FConversationRecord& Conversation, const TArray<FMessageRecord>& Messages)
{
	return Try(
		[&]
		{
			FSqliteTransaction Transaction(*Database);
			Statements->AddConversation
				.Bind(Conversation.Id, Conversation.Title, Conversation.ModeName, Conversation.Created, Conversation.LastUsed)
				.Run();
			for (const FMessageRecord& Message : Messages)
			{
				Statements->AddMessage.Bind(Conversation.Id, static_cast<int64>(Message.Role), Message.Text, ToNumber(Message.End)).Run();
			}
			Transaction.Commit();
		});
}

FStoreError FConversationStore::PutMessage(const FConversationRecord& Conversation, const FMessageRecord& Message, int64& InOutRow)
{
	return Try(
		[&]
		{
			FSqliteTransaction Transaction(*Database);
			Statements->UseConversation.Bind(Conversation.LastUsed, Conversation.Id).Run();
			if (!Database->HasChangedRows())
			{
				ThrowDeleted(InOutRow);
				return;
			}
			int64 Row = InOutRow;
			if (Row > 0)
			{
				Statements->ChangeMessage.Bind(Message.Text, ToNumber(Message.End), Row).Run();
			}
			else
			{
				Statements->AddMessage.Bind(Conversation.Id, static_cast<int64>(Message.Role), Message.Text, ToNumber(Message.End)).Run();
				Row = Database->GetLastInsertedRow();
			}
			Transaction.Commit();
			InOutRow = Row;
		});
}

FStoreError FConversationStore::SetMode(const FString& Id, const FString& ModeName)
{
	return Try([&] { Statements->SetMode.Bind(ModeName, Id).Run(); });
}

FStoreError FConversationStore::Delete(const FString& Id, bool& bOutFound)
{
	return Try(
		[&]
		{
			Statements->Delete.Bind(Id).Run();
			bOutFound = Database->HasChangedRows();
		});
}

FStoreError FConversationStore::InterruptGrowingAnswers()
{
	return Try(
		[&]
		{
			// The right to write is not asked for in vain.
			if (ReadOne(Statements->HasGrowing) != 0)
			{
				Statements->InterruptGrowing.Bind(static_cast<int64>(EAnswerEnd::Failed)).Run();
			}
		});
}

FStoreError FConversationStore::HasForeignChange(bool& bOutChanged)
{
	return Try(
		[&]
		{
			const int64 Version = ReadOne(Statements->ReadDataVersion);
			bOutChanged = Version != DataVersion;
			DataVersion = Version;
		});
}
