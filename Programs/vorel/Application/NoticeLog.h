// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"

// Hears the log and hands on what a user should know of and no request will tell: what went wrong while the program started, what the
// store of conversations and the login tell, and links that could not be opened.
class FNoticeLog final : public FOutputDevice
{
public:
	explicit FNoticeLog(TFunction<void(const FString& Notice)> InOnNotice);
	~FNoticeLog() override;

	// From now on the plug-in's messages are its own business.
	void EndStartup() { bStartup = false; }

	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

private:
	TFunction<void(const FString& Notice)> OnNotice;
	bool bStartup = true;
};
