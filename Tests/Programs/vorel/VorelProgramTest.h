// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Programs/ProgramRun.h"
#include "QtConversion.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <QDir>
#include <QFile>

// The program in a folder of its own, as its users start it.
class FVorelProgramTest : public testing::Test
{
protected:
	FProgramOutcome Run(const QStringList& Arguments)
	{
		return FProgramRun{FProgramRun::FindProgram(QStringLiteral("vorel")), Arguments, GetPath("")}.Run();
	}

	// Each run of a test finds what the ones before left in the data folder.
	FProgramOutcome PlayFile(const QString& File, const QStringList& Options = {})
	{
		return Run(Options + QStringList{QStringLiteral("--offscreen"), QStringLiteral("--data-dir=data"), QStringLiteral("--play"), File});
	}

	void PlaySample(const char* Name, const QStringList& Options = {})
	{
		const FProgramOutcome Outcome = PlayFile(QStringLiteral(VOREL_PROJECT_FOLDER "/Docs/Samples/") + QLatin1String(Name), Options);
		ASSERT_EQ(Outcome.ExitStatus, 0) << Outcome.Errors;
	}

	FProgramOutcome Play(const std::string& Text, const QStringList& Options = {})
	{
		Write("a.play", Text);
		return PlayFile(QStringLiteral("a.play"), Options);
	}

	void Write(const char* Name, const std::string& Text) { Folder.Write(UTF8_TO_TCHAR(Name), Text); }

	QByteArray Read(const char* Name)
	{
		EXPECT_TRUE(Exists(Name)) << Name;
		return QByteArray::fromStdString(Folder.Read(UTF8_TO_TCHAR(Name)));
	}

	bool Exists(const char* Name) { return QFile::exists(GetPath(Name)); }

	QString GetPath(const char* Name) { return ToQString(Folder.GetPath()) + QLatin1Char('/') + QLatin1String(Name); }

	FTempFolder Folder;
};
