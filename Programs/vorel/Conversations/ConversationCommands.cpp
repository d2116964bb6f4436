// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Conversations/ConversationCommands.h"

#include "ConversationFile.h"
#include "ConversationStore.h"
#include "DataFolder.h"
#include "Options/CommandLine.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace
{
// Thrown to the end of the command; a line for the user.
struct FRefusal
{
	FString Reason;
};

class FConversationCommands
{
public:
	explicit FConversationCommands(const FString& Folder)
		: File(Folder / FConversationStore::FileName)
	{
	}

	std::string List()
	{
		std::string Lines;
		for (const FConversationRecord& Conversation : ReadList())
		{
			Lines += ConversationFile::ToListLine(Conversation) + "\n";
		}
		return Lines;
	}

	FWholeConversation Read(const FString& Id)
	{
		FWholeConversation Whole;
		const TArray<FConversationRecord> Conversations = ReadList();
		const FConversationRecord* const Found =
			Conversations.FindByPredicate([&Id](const FConversationRecord& Conversation) { return Conversation.Id == Id; });
		if (!Found)
		{
			RefuseUnknown(Id);
		}
		Whole.Conversation = *Found;
		Check(Store->ReadMessages(Id, Whole.Messages));
		return Whole;
	}

	// Returns the id that the conversation got.
	std::string Import(const FString& SourceFile)
	{
		FString Error;
		TOptional<FWholeConversation> Whole = ConversationFile::FromJson(ReadBytes(SourceFile), Error);
		if (!Whole)
		{
			throw FRefusal{SourceFile + TEXT(": ") + Error};
		}
		if (!FDataFolder::Create(Error))
		{
			throw FRefusal{Error};
		}
		Open(FConversationStore::EMissingFile::Create);
		FConversationRecord& Conversation = Whole->Conversation;
		FStoreError Failure = Store->AddConversation(Conversation, Whole->Messages);
		if (Failure.Problem == EStoreProblem::Conflict)
		{
			Conversation.Id = FConversationRecord::MakeId();
			Failure = Store->AddConversation(Conversation, Whole->Messages);
		}
		Check(Failure);
		return TCHAR_TO_UTF8(Conversation.Id + TEXT("\n"));
	}

	void Delete(const FString& Id)
	{
		bool bFound = false;
		if (Open(FConversationStore::EMissingFile::Refuse))
		{
			Check(Store->Delete(Id, bFound));
		}
		if (!bFound)
		{
			RefuseUnknown(Id);
		}
	}

private:
	// False where there is no store.
	bool Open(FConversationStore::EMissingFile MissingFile)
	{
		FStoreError Error;
		Store = FConversationStore::Open(File, MissingFile, Error);
		if (Error.Problem == EStoreProblem::Missing && MissingFile == FConversationStore::EMissingFile::Refuse)
		{
			return false;
		}
		Check(Error);
		return true;
	}

	TArray<FConversationRecord> ReadList()
	{
		TArray<FConversationRecord> Conversations;
		if (Open(FConversationStore::EMissingFile::Refuse))
		{
			Check(Store->ReadConversations(Conversations));
		}
		return Conversations;
	}

	static std::string ReadBytes(const FString& SourceFile)
	{
		const std::filesystem::path Path(TCHAR_TO_UTF8(SourceFile));
		std::ifstream Stream(Path, std::ios::binary);
		std::error_code Error;
		if (!Stream || std::filesystem::is_directory(Path, Error))
		{
			throw FRefusal{SourceFile + TEXT(": the file can't be read")};
		}
		return std::string(std::istreambuf_iterator<char>(Stream), {});
	}

	void Check(const FStoreError& Error) const
	{
		if (Error)
		{
			throw FRefusal{Error.Describe(File).ToString()};
		}
	}

	[[noreturn]] static void RefuseUnknown(const FString& Id) { throw FRefusal{FString::Printf(TEXT("there is no conversation %s"), *Id)}; }

	FString File;
	TUniquePtr<FConversationStore> Store;
};

std::string RunCommand(const FCommandLine& Line)
{
	if (FDataFolder::Get().IsEmpty())
	{
		FString Reason;
		FDataFolder::Create(Reason);
		throw FRefusal{Reason};
	}
	FConversationCommands Commands(FDataFolder::Get());
	const FString& Name = Line.Command[0];
	if (Name == TEXT("list"))
	{
		return Commands.List();
	}
	const FString& Argument = Line.Command[1];
	if (Name == TEXT("import"))
	{
		return Commands.Import(Argument);
	}
	if (Name == TEXT("delete"))
	{
		Commands.Delete(Argument);
		return std::string();
	}
	const bool bJson = Name == TEXT("export") && Line.ExportFormat == EExportFormat::Json;
	const FWholeConversation Whole = Commands.Read(Argument);
	return bJson ? ConversationFile::ToJson(Whole) : ConversationFile::ToMarkdown(Whole);
}
} // namespace

int RunConversationCommand(const FCommandLine& Line)
{
	try
	{
		FDataFolder::Set(Line.DataDir);
		const std::string Output = RunCommand(Line);
		if (std::fwrite(Output.data(), 1, Output.size(), stdout) != Output.size() || std::fflush(stdout) != 0)
		{
			throw FRefusal{TEXT("the output can't be written")};
		}
		return 0;
	}
	catch (const FRefusal& Refusal)
	{
		std::fprintf(stderr, "vorel: %s\n", TCHAR_TO_UTF8(Refusal.Reason));
		return 1;
	}
}
