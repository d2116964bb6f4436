// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/vorel/VorelProgramTest.h"

#include <QImage>

using VorelProgram = FVorelProgramTest;

TEST_F(VorelProgram, TellsAboutItselfWithoutADisplay)
{
	FProgramRun::ExpectShell("vorel", "$P --help | head -1; $P --version | cut -c -6", "Usage: vorel [options]\nvorel \n", 0);
}

TEST_F(VorelProgram, EndsWithALineWhereItCantGoOn)
{
	Write("a.play", "clipboard \"c.txt\"\n\nclick Send\n");
	const std::pair<const char*, const char*> Rows[] = {
		{"$P", "vorel: there is no display; without one use --offscreen"},
		{"DISPLAY=:9999 $P", "vorel: the display can't be opened; without one use --offscreen"},
		{"$P --offscreen --size=1", "vorel: --size needs a width and a height from 1 to 8192, like 1000x800"},
		{"$P --offscreen --play no.play", "no.play: No such file or directory"},
		{"$P --offscreen --data-dir /proc/none/data",
			"vorel: The folder for data /proc/none/data can't be made: No such file or directory."},
		{"$P --offscreen --data-dir data --play a.play", "a.play:3: a text in double quotes is missing"},
	};
	for (const auto& [Command, Line] : Rows)
	{
		FProgramRun::ExpectShell("vorel", Command, std::string(Line) + "\n", 2, GetPath(""));
	}
	EXPECT_FALSE(Exists("c.txt")) << "a play file is read to its end before the first step";
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
	for (const char* const Name : {"first", "second"})
	{
		// With it go the credits that are spent and shown.
		QDir(GetPath("data")).removeRecursively();
		PlaySample("every-command.play");
		EXPECT_TRUE(QDir().rename(GetPath("every-command"), GetPath(Name)));
	}
	// Each login has an address of its own.
	const char* const Compare = "ls first | wc -l; diff -r --exclude=sent.txt first second";
	FProgramRun::ExpectShell("vorel", Compare, "10\n", 0, GetPath(""));
	EXPECT_TRUE(Read("first/sent.txt").startsWith("http://127.0.0.1:"));
	EXPECT_EQ(Read("first/clipboard.txt"), "a draft with \"quotes\",\ttabs and \\ of\ntwo lines");
	EXPECT_TRUE(Read("first/code.txt").startsWith("// MyGame.h\n#pragma once\n"));
	EXPECT_TRUE(Read("first/tree.txt").startsWith("SVorelAIView 0,0 720x540\n"));
	EXPECT_EQ(QImage(GetPath("first/small.png")).size(), QSize(720, 540));
}

TEST_F(VorelProgram, AScaleGivesMorePixelsToTheSameLayout)
{
	for (const int Scale : {1, 2})
	{
		const QStringList Options = {"--size=800x300", QStringLiteral("--scale=%1").arg(Scale)};
		const FProgramOutcome Outcome = Play("open \"Vorel AI\"\nscreenshot \"a.png\"\ntree \"a.txt\"\n", Options);
		ASSERT_EQ(Outcome.ExitStatus, 0) << Outcome.Errors;
		EXPECT_EQ(QImage(GetPath("a.png")).size(), QSize(800, 300) * Scale);
		EXPECT_TRUE(Read("a.txt").startsWith("SVorelAIView 0,0 800x300\n"));
	}
}

TEST_F(VorelProgram, AnAssistantThatDoesNotAnswerGivesTheQuestionBack)
{
	// The port of a service that no machine offers any more.
	const FProgramOutcome Outcome =
		Play("open \"Vorel AI\"\nlogin \"Ada\"\nfocus \"Type your message here...\"\ntype \"Anybody there?\"\npress Enter\n"
			 "wait text \"Unexpected error!\" 30\nwait idle\nexpect no text \"Type your message here...\"\ntree \"a.txt\"\n",
			{"--assistant=http://127.0.0.1:9", "--model=any"});
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
