// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "StoreFixture.h"

#include "Store/SqliteDatabase.h"
#include <fcntl.h>
#include <fstream>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace
{
// The rights of a user who is not root, until the end of the scope.
class FPlainUserScope
{
public:
	FPlainUserScope()
	{
		constexpr uid_t Nobody = 65534;
		if (OldUser == 0)
		{
			check(::seteuid(Nobody) == 0);
		}
	}
	~FPlainUserScope() { check(::seteuid(OldUser) == 0); }

private:
	const uid_t OldUser = ::geteuid();
};

class FStoreFailureTest : public FStoreTest
{
protected:
	FStoreFailureTest()
	{
		::chmod(TCHAR_TO_UTF8(Folder.GetPath()), 0755);
		FStoreError Error;
		TArray<FMessageRecord> Messages;
		for (int32 Number = 0; Number < 200; ++Number)
		{
			Messages.Add({EChatRole::User, FString::ChrN(500, TEXT('m'))});
		}
		const TUniquePtr<FConversationStore> Store = FConversationStore::Open(StoreFile, FConversationStore::EMissingFile::Create, Error);
		check(!Store->AddConversation({TEXT("old"), TEXT("old"), TEXT("Ask"), 1, 1}, Messages));
	}

	std::string ReadStore() { return Folder.Read(FConversationStore::FileName); }
	std::string ReadLog() { return Folder.Read(TEXT("conversations.sqlite-wal")); }
	void WriteStore(std::string_view Bytes) { Folder.Write(FConversationStore::FileName, Bytes); }
	// The change stands in the log alone.
	void Execute(const char* Sql)
	{
		FSqliteDatabase(StoreFile, false).Execute(Sql);
		EXPECT_NE(ReadLog(), "");
	}

	// The program starts, says this, and works as ever.
	void ExpectWorksAndTells(const FString& Sentences, bool bOldThere = false)
	{
		EXPECT_EQ(GetTitles(Service()), bOldThere ? TEXT("old") : TEXT(""));
		EXPECT_EQ(Ask(TEXT("Hi"), Answer("Fine")), TEXT("history(0)* user(Hi)* chunk(Fine)* answer(Fine) completed"));
		const FString Id = FirstId();
		Service().CreateNewConversation(TEXT("Agent"));
		Service().LoadConversation(Id);
		EXPECT_EQ(GetTexts(Service()), TEXT("Hi|Fine"));
		EXPECT_TRUE(PumpUntil([&] { return Log.Has(TEXT("LogVorelStore"), ELogVerbosity::Warning, Sentences); })) << Sentences << "\n"
																												  << Log.Dump();
	}

	void ExpectLeftAlone(const TCHAR* Sentence)
	{
		const std::string Before = ReadStore();
		const std::string LogBefore = ReadLog();
		ExpectWorksAndTells(FString(Sentence).Replace(TEXT("FILE"), *StoreFile) +
							TEXT(" The conversations of this run are kept in memory, and end with it."));
		EndService();
		EXPECT_TRUE(ReadStore() == Before);
		EXPECT_TRUE(ReadLog() == LogBefore);
		TakeEvents();
		Log.Clear();
	}
};

// In the middle of it, where there are messages.
std::string PutRubbishInto(std::string Bytes)
{
	const size_t Third = Bytes.size() / 3;
	return Bytes.replace(Third, Third, std::string(Third, '\x5A'));
}

// Makes a small file system of its own in the folder; false where the machine doesn't allow that.
bool MountSmallDisk(const FString& Folder)
{
	const std::string UserMap = "0 " + std::to_string(::getuid()) + " 1";
	const std::string GroupMap = "0 " + std::to_string(::getgid()) + " 1";
	if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
	{
		return false;
	}
	std::ofstream("/proc/self/uid_map") << UserMap;
	std::ofstream("/proc/self/setgroups") << "deny";
	std::ofstream("/proc/self/gid_map") << GroupMap;
	return ::mount("none", TCHAR_TO_UTF8(Folder), "tmpfs", 0, "size=400k") == 0;
}
} // namespace

TEST_F(FStoreFailureTest, AFileThatAnotherProgramHasLocked)
{
	FSqliteDatabase Holder(StoreFile, false);
	Holder.Execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
	ExpectLeftAlone(TEXT("Another program has locked FILE."));
}

TEST_F(FStoreFailureTest, AFileOrAFolderThatCantBeWrittenTo)
{
	const TCHAR* const Sentence = TEXT("FILE can't be written to.");
	::chmod(TCHAR_TO_UTF8(StoreFile), 0444);
	{
		const FPlainUserScope PlainUser;
		ExpectLeftAlone(Sentence);
	}
	::chmod(TCHAR_TO_UTF8(StoreFile), 0666);
	::chmod(TCHAR_TO_UTF8(Folder.GetPath()), 0555);
	const FPlainUserScope PlainUser;
	ExpectLeftAlone(Sentence);
}

TEST_F(FStoreFailureTest, AFileOfANewerVersionOrOfSomebodyElse)
{
	Execute("PRAGMA user_version = 99");
	ExpectLeftAlone(TEXT("FILE was written by a newer version of this program."));
	Execute("PRAGMA user_version = 1; PRAGMA application_id = 7");
	ExpectLeftAlone(TEXT("FILE holds something else than expected."));
}

TEST_F(FStoreFailureTest, AFolderThatIsNotThere)
{
	StoreFile = Folder.GetPath(TEXT("nowhere/a.sqlite"));
	ExpectLeftAlone(TEXT("There is no FILE."));
	EXPECT_NE(::access(TCHAR_TO_UTF8(Folder.GetPath(TEXT("nowhere"))), F_OK), 0);
}

TEST_F(FStoreFailureTest, ADamagedFileIsSetAside)
{
	const std::string Whole = ReadStore();
	std::string NegativeVersion = Whole;
	constexpr size_t PlaceOfVersion = 60;
	NegativeVersion.replace(PlaceOfVersion, 4, "\xFF\xFF\xFF\xFF");
	std::string NoVersion = Whole;
	NoVersion.replace(PlaceOfVersion, 4, std::string(4, '\0'));
	struct FRow
	{
		std::string Bytes;
		std::string LogBytes;
		bool bGone = false;
	};
	const FRow Rows[] = {
		{NegativeVersion, ""},
		{NoVersion, ""},
		{Whole.substr(0, Whole.size() * 3 / 5), ""},
		{PutRubbishInto(Whole), ""},
		{"this is no database, but what somebody wrote here", ""},
		// An empty file is a new one, and so is one that isn't there, unless there is a log.
		{"", "what was logged"},
		{"", "what was logged", true},
	};
	for (const auto& [Bytes, LogBytes, bGone] : Rows)
	{
		SCOPED_TRACE(Bytes.size());
		EndService();
		WriteStore(Bytes);
		if (bGone)
		{
			::unlink(TCHAR_TO_UTF8(StoreFile));
		}
		if (!LogBytes.empty())
		{
			Folder.Write(TEXT("conversations.sqlite-wal"), LogBytes);
		}
		Log.Clear();
		Service();
		TakeEvents();
		ASSERT_EQ(Log.CountAtLevel(TEXT("LogVorelStore"), ELogVerbosity::Warning), 1) << Log.Dump();
		FString Before;
		FString NewName;
		Log.GetMessages().Last().Text.Split(TEXT(" as "), &Before, &NewName);
		ASSERT_TRUE(NewName.RemoveFromEnd(TEXT(", and a new one was begun."))) << Log.Dump();
		EXPECT_TRUE(Folder.Read(*NewName.RightChop(Folder.GetPath().Len() + 1)) == Bytes);
		EXPECT_EQ(Folder.Read(*(NewName.RightChop(Folder.GetPath().Len() + 1) + TEXT("-wal"))), LogBytes);
		ExpectWorksAndTells(StoreFile + TEXT(" is damaged. It was set aside as ") + NewName + TEXT(", and a new one was begun."));
		EndService();
		EXPECT_EQ(GetTitles(Service()), TEXT("Hi"));
	}
}

TEST_F(FStoreFailureTest, ADamagedFileIsLeftToTheProgramThatRunsOnIt)
{
	Service();
	const std::string Damaged = PutRubbishInto(ReadStore());
	WriteStore(Damaged);
	StartOther();
	EXPECT_TRUE(Log.Has(TEXT("LogVorelStore"), ELogVerbosity::Warning,
		StoreFile + TEXT(" is damaged. The conversations of this run are kept in memory, and end with it.")))
		<< Log.Dump();
	EXPECT_TRUE(ReadStore() == Damaged);
}

TEST_F(FStoreFailureTest, AConversationThatCantBeReadIsNotTakenForAnEmptyOne)
{
	const std::string Whole = ReadStore();
	// Makes running programs read the file anew.
	const auto Replace = [this](const std::string& Bytes)
	{
		WriteStore(Bytes);
		Execute("UPDATE conversations SET last_used = last_used + 1");
	};
	Service();
	Replace(PutRubbishInto(Whole));
	Service().LoadConversation(TEXT("old"));
	EXPECT_LT(Service().GetCurrentConversation()->Messages.Num(), 200);
	Service().SendMessage(TEXT("Hi"));
	EXPECT_FALSE(TakeEvents().Contains(TEXT("failed")));
	Tick();
	EXPECT_EQ(TakeEvents(), TEXT("failed(Nothing was sent, because the earlier messages of this conversation can't be read.)"));

	Replace(Whole);
	Ask(TEXT("Hi"), Answer("Fine"));
	EXPECT_EQ(Service().GetCurrentConversation()->Messages.Num(), 202);
}

TEST_F(FStoreFailureTest, AFileThatIsLockedForAWhileIsWrittenLater)
{
	Service();
	{
		FSqliteDatabase Holder(StoreFile, false);
		Holder.Execute("BEGIN IMMEDIATE");
		ExpectWorksAndTells(
			TEXT("Another program has locked ") + StoreFile + TEXT(". What is new is kept in memory until it can be stored."), true);
		EXPECT_EQ(ReadFile(FirstId()), TEXT(""));
	}
	EndService();
	EXPECT_EQ(ReadFile(FirstId()), TEXT("user(Hi) complete(Fine)"));
}

TEST_F(FStoreFailureTest, AFileThatIsLockedAtTheEndOrAtAFirstStartIsWaitedFor)
{
	const auto ReleaseAfter = [this](FSqliteDatabase& Holder, const char* Timeout)
	{
		Holder.Execute("BEGIN IMMEDIATE");
		return std::thread(
			[this, &Holder, Timeout]
			{
				FSqliteDatabase Waiting(StoreFile, false);
				Waiting.Execute(Timeout);
				EXPECT_THROW(Waiting.Execute("BEGIN IMMEDIATE"), FStoreError);
				Holder.Execute("COMMIT");
			});
	};
	Service();
	FSqliteDatabase Holder(StoreFile, false);
	// Longer than one write is tried for.
	std::thread Releasing = ReleaseAfter(Holder, "PRAGMA busy_timeout = 2000");
	Ask(TEXT("Hi"), Answer("Fine"));
	const FString Id = FirstId();
	EndService();
	Releasing.join();
	EXPECT_EQ(ReadFile(Id), TEXT("user(Hi) complete(Fine)"));

	StoreFile = Folder.GetPath(TEXT("first.sqlite"));
	FSqliteDatabase First(StoreFile, true);
	Releasing = ReleaseAfter(First, "PRAGMA busy_timeout = 200");
	FStoreError Error;
	EXPECT_TRUE(FConversationStore::Open(StoreFile, FConversationStore::EMissingFile::Create, Error)) << Error.Detail;
	Releasing.join();
}

TEST_F(FStoreFailureTest, AFullDiskLosesNothingOnceThereIsRoomAgain)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	constexpr int NotAllowed = 77;
	bool bAllowed = true;
	const auto Succeeded = [&bAllowed](int Status)
	{
		bAllowed = WEXITSTATUS(Status) != NotAllowed;
		return WIFEXITED(Status) && (WEXITSTATUS(Status) == 0 || !bAllowed);
	};
	EXPECT_EXIT(
		{
			if (!MountSmallDisk(Folder.GetPath()))
			{
				std::_Exit(NotAllowed);
			}
			Service();
			Folder.Write(TEXT("filler"), std::string(1'000'000, 'x'));
			ExpectWorksAndTells(
				TEXT("The disk that holds ") + StoreFile + TEXT(" is full. What is new is kept in memory until it can be stored."));
			::unlink(TCHAR_TO_UTF8(Folder.GetPath(TEXT("filler"))));
			const FString Again = TEXT("All messages are stored again.");
			EXPECT_TRUE(PumpUntil([&] { return Log.Has(TEXT("LogVorelStore"), ELogVerbosity::Display, Again); }));
			EXPECT_EQ(ReadFile(FirstId()), TEXT("user(Hi) complete(Fine)"));
			EndService();
			std::_Exit(HasFailure() ? 1 : 0);
		},
		Succeeded, "");
	if (!bAllowed)
	{
		GTEST_SKIP() << "This machine lets nobody mount a small disk.";
	}
}
