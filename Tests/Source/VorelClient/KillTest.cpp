// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QDeadlineTimer>
#include <QProcess>

#include "StreamingProgram.h"

#include "Http/QtText.h"
#include "ConversationStore.h"
#include "Store/SqliteDatabase.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace
{
// More rounds than fit into a test run are asked for by the environment.
int32 GetRounds()
{
	const char* const Rounds = std::getenv("VOREL_KILL_ROUNDS");
	return Rounds ? std::atoi(Rounds) : 25;
}

struct FShownAnswer
{
	int32 Length = 0;
	bool bComplete = false;
};

// What a program said it had shown, until half a second before the end for the answer under way.
struct FShown
{
	FShown(const QByteArray& Lines, int64 TimeOfKill)
	{
		for (const QByteArray& Line : Lines.split('\n'))
		{
			const QList<QByteArray> Words = Line.split(' ');
			const bool bChunk = Words[0] == "chunk" && Words.size() == 4;
			if (Words[0] == "user" && Words.size() == 2)
			{
				Questions.Add(Words[1].toInt());
			}
			else if (Words[0] == "answer" && Words.size() == 3)
			{
				Answers[Words[1].toInt()] = {Words[2].toInt(), true};
			}
			else if (bChunk && Words[3].toLongLong() <= TimeOfKill - 500)
			{
				Answers[Words[1].toInt()].Length = Words[2].toInt();
			}
		}
	}

	TArray<int32> Questions;
	std::map<int32, FShownAnswer> Answers;
};

class FKillTest : public testing::Test
{
protected:
	// Ends at any moment of several conversations. Returns what was shown.
	FShown ConverseAndKill(int32 FirstNumber)
	{
		QProcess Program;
		Program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
		Program.start(QStringLiteral("/proc/self/exe"),
			{QLatin1String(FStreamingProgram::Switch), ToQString(StoreFile), QString::number(FirstNumber)});
		constexpr int Patience = 30'000;
		QByteArray Lines;
		while (!Lines.contains("chunk") && Program.waitForReadyRead(Patience))
		{
			Lines += Program.readAll();
		}
		const QDeadlineTimer Moment(std::uniform_int_distribution(0, 1200)(Random));
		while (!Moment.hasExpired())
		{
			Program.waitForReadyRead(static_cast<int>(Moment.remainingTime()));
			Lines += Program.readAll();
		}
		const int64 Time = FStreamingProgram::GetMilliseconds();
		Program.kill();
		EXPECT_TRUE(Program.waitForFinished(Patience));
		EXPECT_EQ(Program.exitStatus(), QProcess::CrashExit) << Program.exitCode();
		return FShown(Lines + Program.readAll(), Time);
	}

	// Looks the messages over that came since the last time.
	void ExpectStored(const FShown& Shown)
	{
		EXPECT_TEXT(FSqliteDatabase(StoreFile, false).ReadText("PRAGMA integrity_check"), TEXT("ok"));
		FStoreError Error;
		const TUniquePtr<FConversationStore> Store = FConversationStore::Open(StoreFile, FConversationStore::EMissingFile::Refuse, Error);
		ASSERT_TRUE(Store) << Error.Detail;
		ASSERT_FALSE(Store->InterruptGrowingAnswers());
		TArray<FConversationRecord> Conversations;
		ASSERT_FALSE(Store->ReadConversations(Conversations));
		std::map<int32, FMessageRecord> Questions;
		std::map<int32, FMessageRecord> Answers;
		for (const FConversationRecord& Conversation : Conversations)
		{
			TArray<FMessageRecord> Messages;
			ASSERT_FALSE(Store->ReadMessages(Conversation.Id, Messages));
			int32 Number = 0;
			for (const FMessageRecord& Message : Messages)
			{
				const bool bQuestion = Message.Role == EChatRole::User;
				Number = bQuestion ? std::atoi(TCHAR_TO_UTF8(Message.Text.RightChop(9))) : Number;
				(bQuestion ? Questions : Answers)[Number] = Message;
			}
		}
		for (const int32 Number : Shown.Questions)
		{
			EXPECT_TEXT(Questions[Number].Text, FString::Printf(TEXT("Question %d"), Number));
		}
		for (const auto& [Number, Answer] : Shown.Answers)
		{
			const FMessageRecord& Stored = Answers[Number];
			EXPECT_GE(Stored.Text.Len(), Answer.Length) << Number;
			EXPECT_TRUE(FStreamingProgram::GetWholeAnswer(Number).StartsWith(Stored.Text)) << Number;
			EXPECT_TRUE(!Answer.bComplete || *Stored.End == EAnswerEnd::Complete) << Number;
		}
	}

	const std::random_device::result_type Seed = std::random_device()();
	std::mt19937 Random{Seed};
	FTempFolder Folder;
	const FString StoreFile = Folder.GetPath(FConversationStore::FileName);
};
} // namespace

TEST_F(FKillTest, LosesNothingThatWasShownButTheLastHalfSecondOfTheAnswer)
{
	int32 NumAnswers = 0;
	for (int32 Round = 0; Round < GetRounds() && !HasFailure(); ++Round)
	{
		SCOPED_TRACE(testing::Message() << "round " << Round << " of seed " << Seed);
		const FShown Shown = ConverseAndKill(Round * 1000);
		ASSERT_FALSE(Shown.Questions.IsEmpty());
		NumAnswers += static_cast<int32>(Shown.Answers.size());
		ExpectStored(Shown);
	}
	EXPECT_GT(NumAnswers, 0);
}
