// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/UnrealString.h"
#include "Templates/TypeHash.h"

enum EName
{
	NAME_None
};

struct FNameEntry;

// A shared, immutable name. Equality ignores case and costs one comparison of pointers; the spelling is the one that came first.
class FName
{
public:
	FName() = default;
	FName(EName) {}
	FName(const TCHAR* Name)
		: FName(FStringView(Name))
	{
	}
	FName(const ANSICHAR* Name);
	explicit FName(FStringView Name);

	FString ToString() const { return FString(GetView()); }
	bool IsNone() const { return Entry == nullptr; }

	friend bool operator==(const FName& Lhs, const FName& Rhs) { return Lhs.Entry == Rhs.Entry; }
	friend bool operator==(const FName& Lhs, EName) { return Lhs.IsNone(); }
	friend bool operator==(const FName& Lhs, const TCHAR* Rhs) { return Lhs.GetView() == FStringView(Rhs); }
	friend uint32 GetTypeHash(const FName& Name) { return ::GetTypeHash(static_cast<const void*>(Name.Entry)); }

private:
	FStringView GetView() const;

	// Entries are never freed. Null is the name "None".
	const FNameEntry* Entry = nullptr;
};
