// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

#include "ClientFixture.h"

#include "ConversationStore.h"
#include "Http/QtText.h"
#include "Store/SqliteDatabase.h"
#include "Support/TempFolder.h"
#include <chrono>
#include <map>
#include <random>
#include <unistd.h>

namespace
{
constexpr int32 PiecesOfAnAnswer = 1500;

// More rounds than fit into a test run are asked for by the environment.
int32 GetRounds()
{
	const char* const Rounds = std::getenv("VOREL_KILL_ROUNDS");
	return Rounds ? std::atoi(Rounds) : 25;
}

// Of the machine's steady clock.
int64 GetMilliseconds()
{
	return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::string GetPiece(int32 Number, int32 Index)
{
	return std::to_string(Number) + "." + std::to_string(Index) + " words of this answer; ";
}

FString GetWholeAnswer(int32 Number)
{
	std::string Whole;
	for (int32 Index = 0; Index < PiecesOfAnAnswer; ++Index)
	{
		Whole += GetPiece(Number, Index);
	}
	return FString(Whole.c_str());
}

// One write each, so that what was said is said also when the process ends right behind.
void Say(const FString& Line)
{
	const FTCHARToUTF8 Bytes(Line + TEXT("\n"));
	check(::write(STDOUT_FILENO, Bytes.Get(), static_cast<size_t>(Bytes.Length())) == Bytes.Length());
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

class FKillTest : public FChatClientTest
{
protected:
	// The program that is killed: converses with a streaming server, two questions a conversation, and writes to stdout what it shows:
	//   user N                 the question "Question N"
	//   chunk N LENGTH TIME    so much of answer N, since that time
	//   answer N LENGTH        answer N as complete
	void Converse(int32 FirstNumber)
	{
		Number = FirstNumber;
		Service().OnMessageAdded.AddLambda(
			[this](TObjectPtr<UMessage> Message)
			{
				const bool bUser = Message->Role == EChatRole::User;
				Say(bUser ? FString::Printf(TEXT("user %d"), Number) : FString::Printf(TEXT("answer %d %d"), Number, Shown));
			});
		Service().OnChunkReceived.AddLambda(
			[this](const FString& Chunk)
			{
				Shown += Chunk.Len();
				Say(FString::Printf(TEXT("chunk %d %d %lld"), Number, Shown, GetMilliseconds()));
			});
		Service().OnRequestCompleted.AddLambda([this] { QTimer::singleShot(0, [this] { AskNext(); }); });
		QTimer Frames;
		QElapsedTimer SinceLastFrame;
		SinceLastFrame.start();
		QObject::connect(&Frames, &QTimer::timeout,
			[&SinceLastFrame] { FTSTicker::GetCoreTicker().Tick(static_cast<float>(SinceLastFrame.restart()) / 1000.0f); });
		QObject::connect(&Pieces, &QTimer::timeout, [this] { SendPiece(); });
		Frames.start(5);
		AskNext();
		QCoreApplication::exec();
	}

	// Ends at any moment of several conversations. Returns what was shown.
	FShown ConverseAndKill(int32 FirstNumber)
	{
		QProcess Program;
		Program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
		Program.start(QStringLiteral("/proc/self/exe"),
			{QStringLiteral("--gtest_filter=FKillTest.*"), ToQString(StoreFile), QString::number(FirstNumber)});
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
		const int64 Time = GetMilliseconds();
		Program.kill();
		EXPECT_TRUE(Program.waitForFinished(Patience));
		EXPECT_EQ(Program.exitStatus(), QProcess::CrashExit) << Program.exitCode();
		return FShown(Lines + Program.readAll(), Time);
	}

	// Looks the messages over that came since the last time.
	void ExpectStored(const FShown& Told)
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
			int32 Asked = 0;
			for (const FMessageRecord& Message : Messages)
			{
				const bool bQuestion = Message.Role == EChatRole::User;
				Asked = bQuestion ? std::atoi(TCHAR_TO_UTF8(Message.Text.RightChop(9))) : Asked;
				(bQuestion ? Questions : Answers)[Asked] = Message;
			}
		}
		for (const int32 Asked : Told.Questions)
		{
			EXPECT_TEXT(Questions[Asked].Text, FString::Printf(TEXT("Question %d"), Asked));
		}
		for (const auto& [Asked, Answer] : Told.Answers)
		{
			const FMessageRecord& Stored = Answers[Asked];
			EXPECT_GE(Stored.Text.Len(), Answer.Length) << Asked;
			EXPECT_TRUE(GetWholeAnswer(Asked).StartsWith(Stored.Text)) << Asked;
			EXPECT_TRUE(!Answer.bComplete || *Stored.End == EAnswerEnd::Complete) << Asked;
		}
	}

	const std::random_device::result_type Seed = std::random_device()();

private:
	void AskNext()
	{
		if (++Number % 2 == 0)
		{
			Service().CreateNewConversation(TEXT("Ask"));
		}
		Sent = Shown = 0;
		Server.Then(
			[this](const FExchange& Exchange)
			{
				Exchange.SendStreamHead();
				Pieces.start(1);
			});
		Service().SendMessage(FString::Printf(TEXT("Question %d"), Number));
	}

	void SendPiece()
	{
		const FExchange& Asker = Server.GetExchanges().last();
		Asker.Send(MakeDelta(QByteArray::fromStdString(GetPiece(Number, Sent++))));
		if (Sent == PiecesOfAnAnswer)
		{
			Asker.Send(StopChunk + EndMark);
			Pieces.stop();
		}
	}

	std::mt19937 Random{Seed};
	QTimer Pieces;
	int32 Number = 0;
	int32 Sent = 0;
	int32 Shown = 0;
};
} // namespace

TEST_F(FKillTest, LosesNothingThatWasShownButTheLastHalfSecondOfTheAnswer)
{
	const QStringList Arguments = QCoreApplication::arguments();
	if (Arguments.size() == 3)
	{
		StoreFile = ToFString(Arguments[1]);
		Converse(Arguments[2].toInt());
		return;
	}
	const FTempFolder Folder;
	StoreFile = Folder.GetPath(FConversationStore::FileName);
	int32 NumAnswers = 0;
	for (int32 Round = 0; Round < GetRounds() && !HasFailure(); ++Round)
	{
		SCOPED_TRACE(testing::Message() << "round " << Round << " of seed " << Seed);
		const FShown Told = ConverseAndKill(Round * 1000);
		ASSERT_FALSE(Told.Questions.IsEmpty());
		NumAnswers += static_cast<int32>(Told.Answers.size());
		ExpectStored(Told);
	}
	EXPECT_GT(NumAnswers, 0);
}
