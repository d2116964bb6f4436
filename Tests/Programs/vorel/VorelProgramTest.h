// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Programs/ProgramRun.h"
#include "QtConversion.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

#include <QDir>
#include <QFile>
#include <QHash>

// The program in a folder of its own, as its users start it.
class FVorelProgramTest : public testing::Test
{
protected:
	FProgramOutcome Run(const QStringList& Arguments, const QString& Display = QString())
	{
		FProgramRun Program{FProgramRun::FindProgram(QStringLiteral("vorel")), Arguments, ToQString(Folder.GetPath())};
		if (!Display.isEmpty())
		{
			Program.Environment.insert(QStringLiteral("DISPLAY"), Display);
		}
		return Program.Run();
	}

	// Each run of a test finds what the ones before left in the data folder.
	FProgramOutcome PlayFile(const QString& File, const QStringList& Options = {})
	{
		return Run(Options + QStringList{QStringLiteral("--offscreen"), QStringLiteral("--data-dir=data"), QStringLiteral("--play"), File});
	}

	FProgramOutcome PlaySample(const char* Name, const QStringList& Options = {})
	{
		return PlayFile(QStringLiteral(VOREL_PROJECT_FOLDER "/Docs/Samples/") + QLatin1String(Name), Options);
	}

	FProgramOutcome Play(const char* Text)
	{
		Write("a.play", Text);
		return PlayFile(QStringLiteral("a.play"));
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

	QHash<QString, QByteArray> ReadFolder(const char* Name)
	{
		QHash<QString, QByteArray> Contents;
		for (const QString& File : QDir(GetPath(Name)).entryList(QDir::Files))
		{
			Contents[File] = Read((QLatin1String(Name) + QLatin1Char('/') + File).toUtf8());
		}
		return Contents;
	}

	bool Exists(const char* Name) { return QFile::exists(GetPath(Name)); }

	QString GetPath(const char* Name) { return ToQString(Folder.GetPath()) + QLatin1Char('/') + QLatin1String(Name); }

	FTempFolder Folder;
};
