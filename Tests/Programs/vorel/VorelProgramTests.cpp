// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "QtConversion.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace
{
struct FOutcome
{
	int ExitStatus;
	FString Output;
	FString Errors;
};

// The program in a folder of its own, as its users start it.
class VorelProgram : public testing::Test
{
protected:
	FOutcome Run(const QStringList& Arguments, bool bDisplay = false)
	{
		QProcess Process;
		QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
		for (const char* const Name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
		{
			Environment.remove(QLatin1String(Name));
		}
		if (bDisplay)
		{
			Environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":9999"));
		}
		Process.setProcessEnvironment(Environment);
		Process.setWorkingDirectory(ToQString(Folder.GetPath()));
		Process.start(
			QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget().replace(QLatin1String("Tests.Programs"), QLatin1String("vorel")),
			Arguments);
		EXPECT_TRUE(Process.waitForFinished(PatienceInMilliseconds));
		return {Process.exitStatus() == QProcess::NormalExit ? Process.exitCode() : -1,
			ToFString(QString::fromUtf8(Process.readAllStandardOutput())), ToFString(QString::fromUtf8(Process.readAllStandardError()))};
	}

	FOutcome Play(const char* Text)
	{
		Write("a.play", Text);
		return Run({QStringLiteral("--offscreen"), QStringLiteral("--data-dir"), QStringLiteral("data"), QStringLiteral("--play"),
			QStringLiteral("a.play")});
	}

	void Write(const char* Name, const char* Text)
	{
		QFile File(GetPath(Name));
		EXPECT_TRUE(File.open(QIODevice::WriteOnly) && File.write(Text) >= 0);
	}

	QByteArray Read(const char* Name)
	{
		QFile File(GetPath(Name));
		EXPECT_TRUE(File.open(QIODevice::ReadOnly)) << Name;
		return File.readAll();
	}

	bool Exists(const char* Name) { return QFile::exists(GetPath(Name)); }

	QString GetPath(const char* Name) { return ToQString(Folder.GetPath()) + QLatin1Char('/') + QLatin1String(Name); }

	static constexpr int PatienceInMilliseconds = 120'000;

	FTempFolder Folder;
};

void ExpectRefused(const FOutcome& Outcome, const FString& Line)
{
	EXPECT_EQ(Outcome.ExitStatus, 2);
	EXPECT_TEXT(Outcome.Errors, Line + TEXT("\n"));
	EXPECT_TEXT(Outcome.Output, TEXT(""));
}
} // namespace

TEST_F(VorelProgram, TellsAboutItselfWithoutADisplay)
{
	const FOutcome Help = Run({QStringLiteral("--help")});
	EXPECT_EQ(Help.ExitStatus, 0);
	EXPECT_TRUE(Help.Output.StartsWith(TEXT("Usage: vorel [options]\n")));
	EXPECT_TEXT(Help.Errors, TEXT(""));
	const FOutcome Version = Run({QStringLiteral("--version")});
	EXPECT_EQ(Version.ExitStatus, 0);
	EXPECT_TRUE(Version.Output.StartsWith(TEXT("vorel ")) && Version.Output.EndsWith(TEXT("\n"))) << Version.Output;
}

TEST_F(VorelProgram, NeedsADisplayOrToldOffscreen)
{
	ExpectRefused(Run({}), TEXT("vorel: there is no display; without one use --offscreen"));
	ExpectRefused(Run({}, true), TEXT("vorel: the display can't be opened; without one use --offscreen"));
}

TEST_F(VorelProgram, RefusesWhatItCantRead)
{
	ExpectRefused(Run({QStringLiteral("--offscreen"), QStringLiteral("--size=1")}),
		TEXT("vorel: --size needs a width and a height from 1 to 8192, like 1000x800"));
	ExpectRefused(Run({QStringLiteral("--offscreen"), QStringLiteral("--play"), QStringLiteral("no.play")}),
		TEXT("no.play: No such file or directory"));
	ExpectRefused(Run({QStringLiteral("--offscreen"), QStringLiteral("--data-dir"), QStringLiteral("/proc/none/data")}),
		TEXT("vorel: The folder for data /proc/none/data can't be made: No such file or directory."));
}

TEST_F(VorelProgram, ReadsAPlayFileToItsEndBeforeTheFirstStep)
{
	ExpectRefused(Play("clipboard \"c.txt\"\n\nclick Send\n"), TEXT("a.play:3: a text in double quotes is missing"));
	EXPECT_FALSE(Exists("c.txt"));
}

TEST_F(VorelProgram, AFailedStepEndsIt)
{
	const FOutcome Outcome = Play("open \"Nothing\"\nclipboard \"c.txt\"\n");
	EXPECT_EQ(Outcome.ExitStatus, 1);
	EXPECT_TRUE(
		Outcome.Errors.Contains(TEXT("a.play:1: no Tools menu has an entry Nothing that can be invoked; there are: Vorel AI, Vorel AI\n")))
		<< Outcome.Errors;
	EXPECT_FALSE(Exists("c.txt"));
}

TEST_F(VorelProgram, HoldsAConversationTwiceWithTheSamePictures)
{
	const char* const Conversation = "open \"Vorel AI\"\n"
									 "wait idle\n"
									 "screenshot \"empty.png\"\n"
									 "focus \"Type your message here...\"\n"
									 "type \"How do I log a message?\"\n"
									 "press Enter\n"
									 "expect text \"How do I log a message?\"\n"
									 "wait text \"UE_LOG\" 60\n"
									 "wait idle 60\n"
									 "screenshot \"answer.png\"\n"
									 "screenshot window \"window.png\"\n"
									 "tree \"tree.txt\"\n";
	QByteArray First[4];
	const char* const Files[] = {"empty.png", "answer.png", "window.png", "tree.txt"};
	for (int Round = 0; Round < 2; ++Round)
	{
		const FOutcome Outcome = Play(Conversation);
		ASSERT_EQ(Outcome.ExitStatus, 0) << Outcome.Errors;
		for (int Index = 0; Index < 4; ++Index)
		{
			const QByteArray Saved = Read(Files[Index]);
			EXPECT_TRUE(Round == 0 || Saved == First[Index]) << Files[Index];
			First[Index] = Saved;
		}
	}
	EXPECT_NE(First[0], First[1]);
}
