// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

#include <QProcessEnvironment>
#include <QString>

struct FProgramOutcome
{
	// Negative for a program that was ended by a signal or did not end.
	int ExitStatus;
	FString Output;
	FString Errors;
};

struct FProgramRun
{
	QString Program;
	QStringList Arguments;
	QString Folder;
	// Without a display.
	QProcessEnvironment Environment = GetPlainEnvironment();

	FProgramOutcome Run() const;

	// A shell command in which the program of that name is called $P. The output holds what it wrote to stdout and stderr.
	static FProgramOutcome RunShell(const char* Name, const std::string& Command, const QString& Folder = QString());
	static void ExpectShell(
		const char* Name, const std::string& Command, const std::string& Output, int ExitStatus, const QString& Folder = {});

	// A program of the same build.
	static QString FindProgram(const QString& Name);
	static QProcessEnvironment GetPlainEnvironment();
};
