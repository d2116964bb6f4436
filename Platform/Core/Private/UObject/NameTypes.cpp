// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "UObject/NameTypes.h"
#include "Containers/Map.h"
#include "Containers/StringConv.h"

#include <memory>
#include <mutex>

struct FNameEntry
{
	FString Spelling;
};

namespace
{
// The log names its category on any thread.
class FNamePool
{
public:
	static FNamePool& Get()
	{
		// Never destroyed: names in other statics refer to it.
		static FNamePool* const Pool = new FNamePool();
		return *Pool;
	}

	const FNameEntry* FindOrAdd(FStringView Name)
	{
		const std::lock_guard Lock(Mutex);
		FString Spelling(Name);
		if (const FNameEntry* const* Existing = Entries.Find(Spelling))
		{
			return *Existing;
		}
		return Entries.Add(Spelling, new FNameEntry{Spelling});
	}

private:
	std::mutex Mutex;
	// The key compares ignoring case.
	TMap<FString, const FNameEntry*> Entries;
};
} // namespace

FName::FName(const ANSICHAR* Name)
	: FName(FStringView(FUTF8ToTCHAR(Name)))
{
}

FName::FName(FStringView Name)
	: Entry(Name.IsEmpty() || Name == TEXT("None") ? nullptr : FNamePool::Get().FindOrAdd(Name))
{
}

FStringView FName::GetView() const
{
	return Entry ? FStringView(Entry->Spelling) : FStringView(TEXT("None"));
}
