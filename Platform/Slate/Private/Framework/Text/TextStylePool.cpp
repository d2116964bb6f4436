// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "TextStylePool.h"

#include "Containers/Array.h"
#include "Styling/SlateTypes.h"

namespace
{
/** A message uses a handful of styles at a time; a longer search would cost more than a copy. */
constexpr int32 MaxStyles = 16;
} // namespace

TSharedRef<const FTextBlockStyle> TextStylePool::Share(const FTextBlockStyle& Style)
{
	static TArray<TWeakPtr<const FTextBlockStyle>> Recent;
	for (int32 Index = 0; Index < Recent.Num(); ++Index)
	{
		const TSharedPtr<const FTextBlockStyle> Known = Recent[Index].Pin();
		if (Known && *Known == Style)
		{
			// Towards the front, so that styles in use are found soon and never dropped.
			Recent.Swap(Index, Index / 2);
			return Known.ToSharedRef();
		}
	}
	const TSharedRef<const FTextBlockStyle> Shared = MakeShared<FTextBlockStyle>(Style);
	if (Recent.Num() == MaxStyles)
	{
		Recent.Pop();
	}
	Recent.Insert(TWeakPtr<const FTextBlockStyle>(Shared), Recent.Num() / 2);
	return Shared;
}
