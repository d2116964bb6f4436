// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/vorel/VorelProgramTest.h"

#include <QImage>

using VorelProgram = FVorelProgramTest;

namespace
{
void ExpectRefused(const FProgramOutcome& Outcome, const FString& Line)
{
	EXPECT_EQ(Outcome.ExitStatus, 2);
	EXPECT_TEXT(Outcome.Errors, Line + TEXT("\n"));
	EXPECT_TEXT(Outcome.Output, TEXT(""));
}
} // namespace

TEST_F(VorelProgram, TellsAboutItselfWithoutADisplay)
{
	const FProgramOutcome Help = Run({QStringLiteral("--help")});
	EXPECT_EQ(Help.ExitStatus, 0);
	EXPECT_TRUE(Help.Output.StartsWith(TEXT("Usage: vorel [options]\n")));
	EXPECT_TEXT(Help.Errors, TEXT(""));
	const FProgramOutcome Version = Run({QStringLiteral("--version")});
	EXPECT_EQ(Version.ExitStatus, 0);
	EXPECT_TRUE(Version.Output.StartsWith(TEXT("vorel ")) && Version.Output.EndsWith(TEXT("\n"))) << Version.Output;
}

TEST_F(VorelProgram, NeedsADisplayOrToldOffscreen)
{
	ExpectRefused(Run({}), TEXT("vorel: there is no display; without one use --offscreen"));
	ExpectRefused(Run({}, QStringLiteral(":9999")), TEXT("vorel: the display can't be opened; without one use --offscreen"));
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
	const FProgramOutcome Outcome = Play("open \"Nothing\"\nclipboard \"c.txt\"\n");
	EXPECT_EQ(Outcome.ExitStatus, 1);
	EXPECT_TRUE(
		Outcome.Errors.Contains(TEXT("a.play:1: no Tools menu has an entry Nothing that can be invoked; there are: Vorel AI, Vorel AI\n")))
		<< Outcome.Errors;
	EXPECT_FALSE(Exists("c.txt"));
}

TEST_F(VorelProgram, PlaysEveryCommandTwiceWithTheSameFiles)
{
	QHash<QString, QByteArray> First;
	for (int Round = 0; Round < 2; ++Round)
	{
		// With it go the credits that are spent and shown.
		QDir(GetPath("data")).removeRecursively();
		const FProgramOutcome Outcome = PlaySample("every-command.play");
		ASSERT_EQ(Outcome.ExitStatus, 0) << Outcome.Errors;
		QHash<QString, QByteArray> Saved = ReadFolder("every-command");
		EXPECT_EQ(Saved.size(), 10);
		// Each login has an address of its own.
		EXPECT_TRUE(Saved.take(QStringLiteral("sent.txt")).startsWith("http://127.0.0.1:"));
		for (auto File = First.cbegin(); File != First.cend(); ++File)
		{
			EXPECT_TRUE(Saved[File.key()] == File.value()) << File.key().toStdString();
		}
		First = Saved;
	}
	EXPECT_EQ(First[QStringLiteral("clipboard.txt")], "a draft with \"quotes\",\ttabs and \\ of\ntwo lines");
	EXPECT_TRUE(First[QStringLiteral("code.txt")].startsWith("// MyGame.h\n#pragma once\n"));
	EXPECT_TRUE(First[QStringLiteral("tree.txt")].startsWith("SVorelAIView 0,0 720x540\n"));
	EXPECT_EQ(QImage::fromData(First[QStringLiteral("small.png")]).size(), QSize(720, 540));
}

TEST_F(VorelProgram, AScaleGivesMorePixelsToTheSameLayout)
{
	Write("a.play", "open \"Vorel AI\"\nscreenshot \"a.png\"\ntree \"a.txt\"\n");
	for (const int Scale : {1, 2})
	{
		const FProgramOutcome Outcome = Run({QStringLiteral("--offscreen"), QStringLiteral("--data-dir=data"),
			QStringLiteral("--size=800x300"), QStringLiteral("--scale=%1").arg(Scale), QStringLiteral("--play=a.play")});
		ASSERT_EQ(Outcome.ExitStatus, 0) << Outcome.Errors;
		EXPECT_EQ(QImage(GetPath("a.png")).size(), QSize(800, 300) * Scale);
		EXPECT_TRUE(Read("a.txt").startsWith("SVorelAIView 0,0 800x300\n"));
	}
}

TEST_F(VorelProgram, AnAssistantThatDoesNotAnswerGivesTheQuestionBack)
{
	Write("a.play", "open \"Vorel AI\"\nlogin \"Ada\"\nfocus \"Type your message here...\"\ntype \"Anybody there?\"\npress Enter\n"
					"wait text \"Unexpected error!\" 30\nwait idle\nexpect no text \"Type your message here...\"\ntree \"a.txt\"\n");
	// The port of a service that no machine offers any more.
	const FProgramOutcome Outcome = Run({QStringLiteral("--offscreen"), QStringLiteral("--data-dir=data"),
		QStringLiteral("--assistant=http://127.0.0.1:9"), QStringLiteral("--model=any"), QStringLiteral("--play=a.play")});
	ASSERT_EQ(Outcome.ExitStatus, 0) << Outcome.Errors;
	EXPECT_EQ(Read("a.txt").count("\"Anybody there?\""), 2);
}

TEST_F(VorelProgram, StaysSignedInPastARunThatCanNotUseItsAccounts)
{
	QDir(GetPath("")).mkpath(QStringLiteral("data"));
	Write("data/settings.json", "{\"allowTokenFile\": true}");
	const char* const Ada = "open \"Vorel AI\"\nlogin \"Ada\"\nwait text \"Licenced to: Ada\"\n";
	EXPECT_EQ(Play(Ada).ExitStatus, 0);
	const QString File = GetPath("data/service.sqlite");
	EXPECT_TRUE(QFile::rename(File, GetPath("kept")) && QDir().mkdir(File));
	const FProgramOutcome Without = Play("open \"Vorel AI\"\nexpect text \"Log in\"\nlogin \"Bob\"\nwait text \"Licenced to: Bob\"\n");
	EXPECT_EQ(Without.ExitStatus, 0) << Without.Errors;
	EXPECT_TRUE(Without.Errors.Contains(TEXT("The local service keeps its account in memory, for this run: "))) << Without.Errors;
	EXPECT_TRUE(QDir().rmdir(File) && QFile::rename(GetPath("kept"), File));
	EXPECT_EQ(Play("open \"Vorel AI\"\nexpect no text \"Log in\"\nwait text \"Licenced to: Ada\"\n").ExitStatus, 0);
}
