// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayArguments.h"

#include "Arguments/ReadNumber.h"

const FPlayToken* FPlayArguments::Peek() const
{
	return Error.IsEmpty() && Tokens.IsValidIndex(Position) ? &Tokens[Position] : nullptr;
}

void FPlayArguments::Fail(const FString& Problem)
{
	Error = Error.IsEmpty() ? Problem : Error;
}

FString FPlayArguments::TakeWord()
{
	const FPlayToken* const Token = Peek();
	if (!Token || Token->bQuoted)
	{
		return FString();
	}
	++Position;
	return Token->Text;
}

bool FPlayArguments::SkipWord(const TCHAR* Word)
{
	const FPlayToken* const Token = Peek();
	const bool bFound = Token && !Token->bQuoted && Token->Text.Equals(Word);
	Position += bFound ? 1 : 0;
	return bFound;
}

FString FPlayArguments::TakeText(const TCHAR* What)
{
	const FPlayToken* const Token = Peek();
	if (!Token || !Token->bQuoted || Token->Text.IsEmpty())
	{
		Fail(FString::Printf(TEXT("%s in double quotes is missing"), What));
		return FString();
	}
	++Position;
	return Token->Text;
}

double FPlayArguments::TakeSeconds(double Default)
{
	return Peek() ? TakeSeconds() : Default;
}

double FPlayArguments::TakeSeconds()
{
	// What waits longer than a day waits for nothing.
	constexpr double Most = 86400.0;
	const TOptional<double> Seconds = ReadNumber::Decimal(TakeWord());
	if (!Seconds || *Seconds < 0.0 || *Seconds > Most)
	{
		Fail(TEXT("a number of seconds from 0 to 86400 is missing"));
	}
	return Seconds.Get(0.0);
}

TOptional<int32> FPlayArguments::TakeCount()
{
	if (!Peek())
	{
		return NullOpt;
	}
	const TOptional<int32> Count = ReadNumber::Integer(TakeWord());
	if (!Count || *Count < 1)
	{
		Fail(TEXT("a match is counted by a whole number from 1"));
	}
	return Count;
}

int32 FPlayArguments::TakeNotches()
{
	constexpr int32 Most = 10000;
	const TOptional<int32> Notches = ReadNumber::Integer(TakeWord());
	if (!Notches || *Notches == 0 || FMath::Abs(*Notches) > Most)
	{
		Fail(TEXT("a number of notches is missing: whole, not 0, and at most 10000 either way"));
	}
	return Notches.Get(0);
}

FKeyStroke FPlayArguments::TakeKey()
{
	const FString Name = TakeWord();
	const TOptional<FKeyStroke> Key = FKeyStroke::FromName(Name);
	if (!Key)
	{
		Fail(Name.IsEmpty() ? FString(TEXT("a key is missing")) : FString::Printf(TEXT("there is no key %s"), *Name));
	}
	return Key.Get(FKeyStroke());
}

FContentSize FPlayArguments::TakeSize()
{
	const TOptional<FContentSize> Size = FContentSize::Read(TakeWord());
	if (!Size)
	{
		Fail(TEXT("a width and a height from 1 to 8192 are missing, like 1000x800"));
	}
	return Size.Get(FContentSize());
}

void FPlayArguments::End()
{
	if (const FPlayToken* const Token = Peek())
	{
		Fail(FString::Printf(TEXT("nothing may follow here: %s"), *Token->Text));
	}
}
