// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Options/ContentSize.h"

enum class EExportFormat : uint8
{
	Markdown,
	Json
};

// What the program was asked for on its command line.
struct FCommandLine
{
	bool bHelp = false;
	bool bVersion = false;
	bool bOffscreen = false;
	FContentSize Size;
	// Device pixels per unit; unset: what the desktop says.
	TOptional<double> Scale;
	// Each empty where it was not given.
	FString DataDir;
	FString AssistantUrl;
	FString Model;
	FString ServiceUrl;
	FString Issuer;
	FString ClientId;
	FString PlayFile;

	// Unset: the local service's own number.
	TOptional<int32> DailyCredits;

	// What to do on the stored conversations, with its argument where it takes one; empty where the window is wanted.
	TArray<FString> Command;
	EExportFormat ExportFormat = EExportFormat::Markdown;

	// Unset, with one sentence for the user, where there is something wrong with the command, an option, or some together. Options stand
	// before, behind or within the command, but not behind "--". An option's value follows it, or stands behind its equals sign; of an
	// option given twice the last counts.
	static TOptional<FCommandLine> Parse(const TArray<FString>& Arguments, FString& OutError);

	static FString GetHelp();
};
