// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "RunLooks.h"

#include "Styling/SlateTypes.h"

namespace
{
/** A message uses a handful of looks at a time; a longer search would cost more than a copy. */
constexpr int32 MaxKept = 16;

template <typename LookType>
TSharedRef<const LookType> ShareRecent(const LookType& Look)
{
	static TArray<TSharedRef<const LookType>> Recent;
	for (int32 Index = 0; Index < Recent.Num(); ++Index)
	{
		if (*Recent[Index] == Look)
		{
			// Towards the front, so that what is in use is found soon and never dropped.
			Recent.Swap(Index, Index / 2);
			return Recent[Index / 2];
		}
	}
	if (Recent.Num() == MaxKept)
	{
		Recent.Pop();
	}
	const int32 Middle = Recent.Num() / 2;
	Recent.Insert(MakeShared<LookType>(Look), Middle);
	return Recent[Middle];
}
} // namespace

TSharedRef<const FTextBlockStyle> RunLooks::Share(const FTextBlockStyle& Style)
{
	return ShareRecent(Style);
}

TSharedRef<const FRunInfo> RunLooks::Share(const FRunInfo& RunInfo)
{
	return ShareRecent(RunInfo);
}
