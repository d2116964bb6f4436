// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "UObject/NameTypes.h"

// The kind of a tab and, where there may be several, which of them.
struct FTabId
{
	FTabId() = default;
	FTabId(const FName InTabType, int32 InInstanceId = INDEX_NONE)
		: TabType(InTabType)
		, InstanceId(InInstanceId)
	{
	}

	FName TabType;
	int32 InstanceId = INDEX_NONE;

	friend bool operator==(const FTabId&, const FTabId&) = default;
};
