// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "HAL/PlatformHooks.h"
#include "Logging/LogMacros.h"
#include "Windows/WindowsPlatformApplicationMisc.h"
#include "Windows/WindowsPlatformProcess.h"

DEFINE_LOG_CATEGORY_STATIC(LogPlatform, Log, All);

FPlatformHooks& FPlatformHooks::Get()
{
	static FPlatformHooks Hooks;
	return Hooks;
}

void FWindowsPlatformProcess::LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error)
{
	const FString Address = FString(URL) + FStringView(Parms);
	FString Reason = TEXT("There is no desktop to open it with");
	const TFunction<bool(const FString&, FString&)>& Hook = FPlatformHooks::Get().LaunchURL;
	const bool bLaunched = Hook && Hook(Address, Reason);
	// What follows the question mark may be nobody else's business.
	int32 Query = 0;
	const FString Shown = Address.FindChar('?', Query) ? Address.Left(Query) : Address;
	UE_CLOG(!bLaunched, LogPlatform, Warning, TEXT("Can't open the address %s: %s"), *Shown, *Reason);
	if (Error)
	{
		*Error = bLaunched ? FString() : Reason;
	}
}

void FWindowsPlatformApplicationMisc::ClipboardCopy(const TCHAR* Str)
{
	const TFunction<void(const FString&)>& Hook = FPlatformHooks::Get().ClipboardCopy;
	UE_CLOG(!Hook, LogPlatform, Warning, TEXT("There is no clipboard to copy to"));
	if (Hook)
	{
		Hook(Str);
	}
}
