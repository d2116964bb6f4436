// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/AssertionMacros.h"
#include "Containers/UnrealString.h"
#include "Misc/OutputDeviceRedirector.h"

#include <cstdlib>
#include <cstring>

// The folders say where the program was built, which is nobody's business.
static FString DescribePlace(const ANSICHAR* File, int32 Line)
{
	const ANSICHAR* Slash = std::strrchr(File, '/');
	return FString::Printf(TEXT("[File:%hs] [Line: %i]"), Slash ? Slash + 1 : File, Line);
}

static void Report(
	const TCHAR* Kind, const ANSICHAR* Expression, const FString& Place, const FString& Message, ELogVerbosity::Type Verbosity)
{
	FString Text = FString::Printf(TEXT("%s: %hs %s"), Kind, Expression, *Place);
	if (!Message.IsEmpty())
	{
		Text += TEXT(" ") + Message;
	}
	GLog->Serialize(*Text, Verbosity, TEXT("LogAssert"));
}

void FDebug::CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line)
{
	Report(TEXT("Assertion failed"), Expression, DescribePlace(File, Line), FString(), ELogVerbosity::Fatal);
	std::abort();
}

void FDebug::CheckFailedImpl(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, FVarArgs Arguments)
{
	const FString Message = FString::PrintfImpl(Format, Arguments);
	Report(TEXT("Assertion failed"), Expression, DescribePlace(File, Line), Message, ELogVerbosity::Fatal);
	std::abort();
}

bool FDebug::EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line)
{
	Report(TEXT("Ensure condition failed"), Expression, DescribePlace(File, Line), FString(), ELogVerbosity::Error);
	return false;
}

bool FDebug::EnsureFailedImpl(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, FVarArgs Arguments)
{
	const FString Message = FString::PrintfImpl(Format, Arguments);
	Report(TEXT("Ensure condition failed"), Expression, DescribePlace(File, Line), Message, ELogVerbosity::Error);
	return false;
}
