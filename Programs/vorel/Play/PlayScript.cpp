// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayScript.h"

#include "Play/PlayArguments.h"
#include "Play/PlaySteps.h"
#include "QtConversion.h"

#include <QFile>
#include <QStringDecoder>

// Unset where the line holds no step or can't be read; OutError tells which.
static TOptional<FPlayStep> ParseLine(FStringView Line, FString& OutError)
{
	TArray<FPlayToken> Tokens;
	if (!ReadPlayTokens(Line, Tokens, OutError) || Tokens.IsEmpty())
	{
		return NullOpt;
	}
	FPlayArguments Arguments(MoveTemp(Tokens));
	FPlayStep Step = ParsePlayStep(Arguments);
	Arguments.End();
	OutError = Arguments.GetError();
	return OutError.IsEmpty() ? TOptional<FPlayStep>(MoveTemp(Step)) : NullOpt;
}

TOptional<FPlayScript> FPlayScript::Parse(const FString& File, const FString& Text, FString& OutError)
{
	FPlayScript Script;
	Script.File = File;
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines, false);
	for (int32 Index = 0; Index < Lines.Num(); ++Index)
	{
		FString Problem;
		if (TOptional<FPlayStep> Step = ParseLine(Lines[Index], Problem))
		{
			Script.Lines.Add({Index + 1, MoveTemp(*Step)});
		}
		else if (!Problem.IsEmpty())
		{
			OutError = FString::Printf(TEXT("%s:%d: %s"), *File, Index + 1, *Problem);
			return NullOpt;
		}
	}
	return Script;
}

TOptional<FPlayScript> FPlayScript::Load(const FString& File, FString& OutError)
{
	QFile Disk(ToQString(File));
	if (!Disk.open(QIODevice::ReadOnly))
	{
		OutError = FString::Printf(TEXT("%s: %s"), *File, *ToFString(Disk.errorString()));
		return NullOpt;
	}
	const QByteArray Bytes = Disk.readAll();
	QStringDecoder Decoder(QStringDecoder::Utf8);
	const QString Text = Decoder(Bytes);
	if (Disk.error() != QFileDevice::NoError || Decoder.hasError())
	{
		const QString Reason = Decoder.hasError() ? QStringLiteral("this is not UTF-8 text") : Disk.errorString();
		OutError = FString::Printf(TEXT("%s: %s"), *File, *ToFString(Reason));
		return NullOpt;
	}
	return Parse(File, ToFString(Text), OutError);
}
