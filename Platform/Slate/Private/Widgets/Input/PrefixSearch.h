// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

/**
 * Finds an option by the beginning of its text, as it is typed, or else by that of a later word. Letters that follow each other within a
 * second make one beginning. Since reading an option may mean to build its row, only some are read at once, and the others in the frames
 * that follow.
 */
class FPrefixSearch : public TSharedFromThis<FPrefixSearch>
{
public:
	DECLARE_DELEGATE_RetVal_OneParam(FString, FReadOption, int32 /* Index */);
	DECLARE_DELEGATE_OneParam(FOnFound, int32 /* Index */);

	FPrefixSearch(const FReadOption& InReadOption, const FOnFound& InOnFound)
		: ReadOption(InReadOption)
		, OnFound(InOnFound)
	{
	}

	/** The search goes round from the highlighted option; INDEX_NONE for none. */
	void Type(TCHAR Character, int32 Highlighted, int32 InNumOptions);
	bool IsTyping() const { return !Prefix.IsEmpty(); }

	/** The user goes on by other means. */
	void Stop();

	/** The options changed. */
	void Reset();

private:
	bool ForgetPrefix(float);
	bool Continue(float);
	void Compare(int32 Index);
	const FString& GetText(int32 Index);

	FReadOption ReadOption;
	FOnFound OnFound;
	FString Prefix;
	/** What is looked for, which may take longer than a second. */
	FString Sought;
	FDelegateHandle ForgetHandle;

	/** What was read so far, by option. */
	TMap<int32, FString> Texts;
	int32 NumOptions = 0;
	int32 Next = 0;
	int32 NumLeft = 0;
	/** The first option in which a later word begins so. */
	int32 FirstWithin = INDEX_NONE;
	bool bContinuing = false;
};
