// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

// Says, for its life, who adds to the menus: FToolMenuOwnerScoped OwnerScoped(this).
class FToolMenuOwnerScoped
{
public:
	explicit FToolMenuOwnerScoped(const void* InOwner)
		: PreviousOwner(CurrentOwner)
	{
		CurrentOwner = InOwner;
	}

	~FToolMenuOwnerScoped() { CurrentOwner = PreviousOwner; }

	FToolMenuOwnerScoped(const FToolMenuOwnerScoped&) = delete;
	FToolMenuOwnerScoped& operator=(const FToolMenuOwnerScoped&) = delete;

	// Null where nobody said so.
	static const void* GetCurrentOwner() { return CurrentOwner; }

private:
	static inline const void* CurrentOwner = nullptr;

	const void* PreviousOwner;
};
