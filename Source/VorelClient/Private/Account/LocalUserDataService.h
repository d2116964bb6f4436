// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Ticker.h"
#include "UserDataService.h"

// Knows the one user of this machine. Answers in the next frame, once for all that was asked until then.
class ULocalUserDataService final : public UUserDataService
{
public:
	~ULocalUserDataService() override;

	void GetUserData() override;

private:
	bool Answer(float DeltaTime);

	FTSTicker::FDelegateHandle Frame;
};
