// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/ProgramRun.h"
#include "QtConversion.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <memory>

static constexpr int PatienceInMilliseconds = 60'000;

namespace
{
// A program that runs until the test has done with it.
class FRunningProgram
{
public:
	FRunningProgram(const QString& Program, const QStringList& Arguments, const QProcessEnvironment& Environment)
	{
		Process.setProcessEnvironment(Environment);
		Process.start(Program, Arguments);
	}

	~FRunningProgram()
	{
		Process.terminate();
		if (!Process.waitForFinished(PatienceInMilliseconds))
		{
			Process.kill();
			Process.waitForFinished();
		}
	}

	// What it writes up to this text, from the end of the last call on. Empty where the text does not come.
	QByteArray ReadUntil(QProcess::ProcessChannel Channel, const QByteArray& Text)
	{
		Process.setReadChannel(Channel);
		const QDeadlineTimer Deadline(PatienceInMilliseconds);
		while (!Unread.contains(Text))
		{
			if (!Process.bytesAvailable() && !Process.waitForReadyRead(static_cast<int>(Deadline.remainingTime())))
			{
				return QByteArray();
			}
			Unread += Process.readAll();
		}
		const QByteArray Read = Unread.left(Unread.indexOf(Text) + Text.size());
		Unread.remove(0, Read.size());
		return Read;
	}

	// Negative where it does not end by itself.
	int WaitForExitStatus() { return Process.waitForFinished(PatienceInMilliseconds) ? Process.exitCode() : -1; }

private:
	QProcess Process;
	QByteArray Unread;
};

// The program on an X server of its own, with a hand on its mouse and keyboard.
class VorelWindow : public testing::Test
{
protected:
	void SetUp() override
	{
		const QStringList Options = QStringLiteral("-displayfd 1 -nolisten tcp -screen 0 1280x1024x24").split(u' ');
		Server = std::make_unique<FRunningProgram>(QStringLiteral("Xvfb"), Options, Environment);
		SignIn();
		const QByteArray Number = Server->ReadUntil(QProcess::StandardOutput, "\n").trimmed();
		ASSERT_FALSE(Number.isEmpty());
		Environment.insert(QStringLiteral("DISPLAY"), u':' + QString::fromLatin1(Number));
		Vorel = std::make_unique<FRunningProgram>(
			FProgramRun::FindProgram(QStringLiteral("vorel")), QStringList{QStringLiteral("--data-dir"), Path}, Environment);
		Hand("search --sync --onlyvisible --name ^Vorel.AI$ windowmove 0 0 windowfocus --sync");
	}

	// For the next start, since the browser is somebody else's.
	void SignIn()
	{
		Folder.Write(TEXT("settings.json"), "{\"allowTokenFile\": true}");
		Folder.Write(TEXT("login.play"), "open \"Vorel AI\"\nlogin \"Ada\"\nwait text \"Welcome back!\"\n");
		const QStringList Options = {QStringLiteral("--offscreen"), QStringLiteral("--data-dir=."), QStringLiteral("--play=login.play")};
		EXPECT_EQ((FProgramRun{FProgramRun::FindProgram(QStringLiteral("vorel")), Options, Path, Environment}.Run().ExitStatus), 0);
	}

	// Commands of xdotool.
	void Hand(const char* Commands)
	{
		const QStringList Words = QString::fromLatin1(Commands).split(u' ');
		const FProgramOutcome Outcome = FProgramRun{QStringLiteral("xdotool"), Words, Path, Environment}.Run();
		EXPECT_EQ(Outcome.ExitStatus, 0) << Commands << ": " << Outcome.Errors;
	}

	// By another program on the same display.
	QByteArray ReadClipboard()
	{
		QFile Play(Path + QStringLiteral("/clipboard.play"));
		EXPECT_TRUE(Play.open(QIODevice::WriteOnly) && Play.write("clipboard \"clipboard.txt\"\n") > 0);
		Play.close();
		const QStringList Options = {QStringLiteral("--data-dir=other"), QStringLiteral("--play=clipboard.play")};
		EXPECT_EQ((FProgramRun{FProgramRun::FindProgram(QStringLiteral("vorel")), Options, Path, Environment}.Run().ExitStatus), 0);
		QFile Saved(Path + QStringLiteral("/clipboard.txt"));
		return Saved.open(QIODevice::ReadOnly) ? Saved.readAll() : QByteArray();
	}

	bool WaitForLog(const char* Text) { return !Vorel->ReadUntil(QProcess::StandardError, Text).isEmpty(); }

	// The first frame may not have been drawn yet, so a hand looks whether its words have arrived.
	bool TypeUntilShown(const char* Text)
	{
		constexpr int MostTries = 10;
		for (int Try = 0; Try < MostTries; ++Try)
		{
			Hand("mousemove 400 800 click 1 key ctrl+a");
			Hand((QByteArray("type --delay 5 ") + Text).constData());
			Hand("key ctrl+a ctrl+c");
			if (ReadClipboard() == Text)
			{
				return true;
			}
		}
		return false;
	}

	FTempFolder Folder;
	QString Path = ToQString(Folder.GetPath());
	QProcessEnvironment Environment = FProgramRun::GetPlainEnvironment();
	std::unique_ptr<FRunningProgram> Server;
	std::unique_ptr<FRunningProgram> Vorel;
};
} // namespace

TEST_F(VorelWindow, IsUsedByMouseAndKeyboard)
{
	constexpr const char* TabOpened = "Updating view state: UserDataService is valid";
	Hand("key alt+t Down Return");
	ASSERT_TRUE(WaitForLog(TabOpened));
	ASSERT_TRUE(TypeUntilShown("Actors?"));
	Hand("key Return");
	ASSERT_TRUE(WaitForLog("Refreshing chat history widget with 1 histories"));

	Hand("key ctrl+w");
	Hand("key alt+b Down Return");
	ASSERT_TRUE(WaitForLog(TabOpened));

	Hand("key ctrl+q");
	EXPECT_EQ(Vorel->WaitForExitStatus(), 0);
}
