// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/ProgramRun.h"
#include "QtConversion.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <QDir>
#include <QFile>

namespace
{
// A copy of the two commands among programs of ours, which stand in for those of the system.
class Scripts : public testing::Test
{
protected:
	Scripts()
	{
		EXPECT_TRUE(QDir().mkpath(Root + QStringLiteral("/scripts")) && QDir().mkpath(Root + QStringLiteral("/bin")));
		for (const char* const File : {"run.sh", "test.sh", "scripts/setup.sh"})
		{
			const QString Name = QLatin1Char('/') + QLatin1String(File);
			EXPECT_TRUE(QFile::copy(QStringLiteral(VOREL_PROJECT_FOLDER) + Name, Root + Name));
		}
		// Whatever it is asked for is installed.
		Replace("dpkg-query", "shift 3; printf 'installed %s\\n' \"$@\"");
		Replace("cmake", "echo cmake version 3.25.1; mkdir -p build/release/bin; touch build/release/build.ninja\n"
						 "echo CMAKE_HOME_DIRECTORY:INTERNAL=$PWD > build/release/CMakeCache.txt");
		Replace("ninja", "echo 'ninja: Entering directory'; echo 'ninja: no work to do.'");
	}

	void Replace(const char* Name, const char* Script)
	{
		QFile File(Root + QStringLiteral("/bin/") + QLatin1String(Name));
		EXPECT_TRUE(File.open(QIODevice::WriteOnly | QIODevice::Truncate));
		EXPECT_TRUE(File.write(QByteArray("#!/bin/bash\n") + Script + "\n") > 0);
		EXPECT_TRUE(File.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
	}

	FProgramOutcome RunIn(const QString& Folder, const QString& Path, const QStringList& Arguments)
	{
		FProgramRun Program{QStringLiteral("/bin/bash"), QStringList(Root + QStringLiteral("/run.sh")) + Arguments, Folder};
		Program.Environment.insert(QStringLiteral("PATH"), Path);
		Program.Environment.remove(QStringLiteral("CXX"));
		return Program.Run();
	}

	FProgramOutcome Run(const QStringList& Arguments = {}) { return RunIn(Root, Root + QStringLiteral("/bin:/usr/bin:/bin"), Arguments); }

	// One line that begins like this, after whatever other programs said.
	void ExpectStopped(const FProgramOutcome& Outcome, const char* Beginning)
	{
		EXPECT_EQ(Outcome.ExitStatus, 3);
		EXPECT_TEXT(Outcome.Output, TEXT(""));
		EXPECT_TRUE(Outcome.Errors.Contains(FString("run.sh: ") + FString(Beginning), ESearchCase::CaseSensitive)) << Outcome.Errors;
	}

	FTempFolder Folder;
	QString Root = ToQString(Folder.GetPath());
};
} // namespace

TEST_F(Scripts, HandThroughArgumentsFolderOutputAndStatus)
{
	Replace("ninja", "printf '#!/bin/bash\\npwd; printf \"<%%s>\" \"$@\"; exit 7' > \"$2/bin/vorel\"; chmod +x \"$2/bin/vorel\"\n"
					 "echo 'ninja: no work to do.'");
	for (int Round = 0; Round < 2; ++Round)
	{
		const FProgramOutcome Outcome =
			RunIn(QStringLiteral("/usr"), Root + QStringLiteral("/bin:/usr/bin:/bin"), {"--play", "a b.play", "", "*"});
		EXPECT_EQ(Outcome.ExitStatus, 7);
		EXPECT_TEXT(Outcome.Output, TEXT("/usr\n<--play><a b.play><><*>"));
		EXPECT_EQ(Outcome.Errors.IsEmpty(), Round == 1) << Outcome.Errors;
	}
}

TEST_F(Scripts, StopWhereThereIsNoApt)
{
	const QString Few = Root + QStringLiteral("/few");
	EXPECT_TRUE(QDir().mkpath(Few));
	EXPECT_TRUE(QFile::link("/usr/bin/dirname", Few + "/dirname") && QFile::link("/usr/bin/basename", Few + "/basename"));
	ExpectStopped(RunIn(Root, Few, {}), "this needs Debian 12 or a relative of it: there is no apt-get here to install: g++ cmake");
}

TEST_F(Scripts, StopWhereNothingCanBeInstalled)
{
	Replace("dpkg-query", "echo installed cmake");
	Replace("apt-get", "exit 100");
	Replace("id", "echo 0");
	ExpectStopped(Run(), "apt-get could not install what is missing (is there a network?): ca-certificates ccache fonts-");
	Replace("id", "echo 1000");
	Replace("sudo", "echo \"sudo $*\"; exit 1");
	const FProgramOutcome WithSudo = Run();
	ExpectStopped(WithSudo, "apt-get could not install");
	EXPECT_TRUE(WithSudo.Errors.Contains(TEXT("sudo env DEBIAN_FRONTEND=noninteractive apt-get"))) << WithSudo.Errors;
}

TEST_F(Scripts, StopWhereToolsAreTooOld)
{
	Replace("g++", "exit 1");
	ExpectStopped(Run(), "the compiler g++ is too old: this needs g++ 12 or newer");
	Replace("g++", "exit 0");
	Replace("cmake", "echo cmake version 3.9.6");
	ExpectStopped(Run(), "CMake 3.9.6 is too old: this needs 3.25 or newer");
}

TEST_F(Scripts, StopWhereTheBuildFails)
{
	Replace("ninja", "echo '[1/2] Building a.cpp'; echo 'a.cpp:1: error: no'; exit 1");
	const FProgramOutcome Outcome = Run();
	ExpectStopped(Outcome, "building failed, see above");
	EXPECT_TRUE(Outcome.Errors.Contains(TEXT("[1/2] Building a.cpp\na.cpp:1: error: no\n"))) << Outcome.Errors;
}

TEST_F(Scripts, WithoutADisplayASampleConversationIsPlayed)
{
	Replace("ninja", "printf '#!/bin/bash\\necho \"$PWD $*\"; touch 1.png; exit 1' > \"$2/bin/vorel\"; chmod +x \"$2/bin/vorel\"");
	const FProgramOutcome Outcome = Run();
	EXPECT_EQ(Outcome.ExitStatus, 1);
	const FString Pictures = ToFString(Root) + TEXT("/build/first-conversation");
	EXPECT_TEXT(Outcome.Output,
		Pictures + TEXT(" --offscreen --data-dir data --play ") + ToFString(Root) + TEXT("/Docs/Samples/first-conversation.play\n"));
	EXPECT_TRUE(Outcome.Errors.Contains(TEXT("run.sh: its pictures lie in ") + Pictures + TEXT(":\n  1.png\n"))) << Outcome.Errors;
}
