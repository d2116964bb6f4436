// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Options/ContentSize.h"
#include "Play/KeyStroke.h"
#include "Play/PlayTokens.h"

// Takes a command's arguments from the left. The first thing that is wrong is kept, and whatever is taken after it is empty.
class FPlayArguments
{
public:
	explicit FPlayArguments(TArray<FPlayToken> InTokens)
		: Tokens(MoveTemp(InTokens))
	{
	}

	// A bare word; empty where something else stands there, or nothing.
	FString TakeWord();
	// Whether this bare word stands there; then it is taken.
	bool SkipWord(const TCHAR* Word);
	// A text in double quotes that is not empty; What is what it tells.
	FString TakeText(const TCHAR* What);
	double TakeSeconds(double Default);
	double TakeSeconds();
	// From 1; unset where none is given.
	TOptional<int32> TakeCount();
	int32 TakeNotches();
	FKeyStroke TakeKey();
	FContentSize TakeSize();

	bool IsAtEnd() const { return !Peek(); }
	// Nothing may be left.
	void End();
	void Fail(const FString& Problem);
	const FString& GetError() const { return Error; }

private:
	const FPlayToken* Peek() const;

	TArray<FPlayToken> Tokens;
	int32 Position = 0;
	FString Error;
};
