// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Misc/OutputDevice.h"
#include <mutex>

// Writes every message to stderr and to each device added.
class FOutputDeviceRedirector final : public FOutputDevice
{
public:
	static FOutputDeviceRedirector* Get();

	// The device must be removed before it goes.
	void AddOutputDevice(FOutputDevice* OutputDevice);
	void RemoveOutputDevice(FOutputDevice* OutputDevice);

	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

private:
	// A check that fails inside a device is logged too.
	std::recursive_mutex Mutex;
	TArray<FOutputDevice*> Devices;
};

#define GLog FOutputDeviceRedirector::Get()
