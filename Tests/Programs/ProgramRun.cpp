// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ProgramRun.h"

#include "QtConversion.h"
#include "Support/Printers.h"

#include <QFileInfo>
#include <QProcess>

static constexpr int PatienceInMilliseconds = 120'000;

FProgramOutcome FProgramRun::RunShell(const char* Name, const std::string& Command, const QString& Folder)
{
	const QString Setup = QStringLiteral("P='%1'; exec 2>&1; ").arg(FindProgram(QString::fromUtf8(Name)));
	return FProgramRun{QStringLiteral("/bin/bash"), {QStringLiteral("-c"), Setup + QString::fromStdString(Command)}, Folder}.Run();
}

void FProgramRun::ExpectShell(
	const char* Name, const std::string& Command, const std::string& Output, int ExitStatus, const QString& Folder)
{
	const FProgramOutcome Outcome = RunShell(Name, Command, Folder);
	EXPECT_TEXT(Outcome.Output, FString(Output.c_str())) << Command;
	EXPECT_EQ(Outcome.ExitStatus, ExitStatus) << Command;
}

QString FProgramRun::FindProgram(const QString& Name)
{
	return QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).path() + QLatin1Char('/') + Name;
}

QProcessEnvironment FProgramRun::GetPlainEnvironment()
{
	QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
	for (const char* const Name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
	{
		Environment.remove(QLatin1String(Name));
	}
	// What a test signs in with is none of the user's.
	Environment.insert(QStringLiteral("VOREL_SECRET_STORE"), QStringLiteral("none"));
	return Environment;
}

FProgramOutcome FProgramRun::Run() const
{
	QProcess Process;
	Process.setProcessEnvironment(Environment);
	Process.setWorkingDirectory(Folder);
	Process.start(Program, Arguments);
	EXPECT_TRUE(Process.waitForFinished(PatienceInMilliseconds)) << Program.toStdString() << ": " << Process.errorString().toStdString();
	const bool bEnded = Process.state() == QProcess::NotRunning && Process.exitStatus() == QProcess::NormalExit;
	return {bEnded ? Process.exitCode() : -1, ToFString(QString::fromUtf8(Process.readAllStandardOutput())),
		ToFString(QString::fromUtf8(Process.readAllStandardError()))};
}
