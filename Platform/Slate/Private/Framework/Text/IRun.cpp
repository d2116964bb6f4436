// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/IRun.h"

bool FRunInfo::operator==(const FRunInfo& Other) const
{
	if (!Name.Equals(Other.Name) || MetaData.Num() != Other.MetaData.Num())
	{
		return false;
	}
	for (const auto& Entry : MetaData)
	{
		const FString* Value = Other.MetaData.Find(Entry.Key);
		if (!Value || !Value->Equals(Entry.Value))
		{
			return false;
		}
	}
	return true;
}
