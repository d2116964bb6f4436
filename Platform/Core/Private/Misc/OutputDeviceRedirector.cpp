// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/OutputDeviceRedirector.h"
#include "Containers/StringConv.h"

#include <cstdio>

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	// Never destroyed, so that destructors of other statics may still log.
	static FOutputDeviceRedirector* const Redirector = new FOutputDeviceRedirector();
	return Redirector;
}

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	const std::lock_guard Lock(Mutex);
	Devices.AddUnique(OutputDevice);
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	const std::lock_guard Lock(Mutex);
	Devices.Remove(OutputDevice);
}

static void WriteToStandardError(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	FString Line = Category.ToString() + TEXT(": ");
	if (Verbosity != ELogVerbosity::Log)
	{
		Line.Append(ToString(Verbosity)).Append(TEXT(": "));
	}
	Line.Append(V).AppendChar(TEXT('\n'));
	// One write a line, so that lines of several processes do not mix.
	const FTCHARToUTF8 Bytes(Line);
	std::fwrite(Bytes.Get(), 1, static_cast<SIZE_T>(Bytes.Length()), stderr);
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	const std::lock_guard Lock(Mutex);
	WriteToStandardError(V, Verbosity, Category);
	for (FOutputDevice* Device : Devices)
	{
		Device->Serialize(V, Verbosity, Category);
	}
}
