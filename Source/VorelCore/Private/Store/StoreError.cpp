// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Store/StoreError.h"

#define LOCTEXT_NAMESPACE "VorelCore"

static FText GetSentence(const FStoreError& Error)
{
	switch (Error.Problem)
	{
	case EStoreProblem::Missing:
		return LOCTEXT("StoreMissing", "There is no {0}.");
	case EStoreProblem::Locked:
		return LOCTEXT("StoreLocked", "Another program has locked {0}.");
	case EStoreProblem::ReadOnly:
		return LOCTEXT("StoreReadOnly", "{0} can't be written to.");
	case EStoreProblem::Full:
		return LOCTEXT("StoreFull", "The disk that holds {0} is full.");
	case EStoreProblem::Damaged:
		return LOCTEXT("StoreDamaged", "{0} is damaged.");
	case EStoreProblem::NewerVersion:
		return LOCTEXT("StoreNewer", "{0} was written by a newer version of this program.");
	case EStoreProblem::Foreign:
		return LOCTEXT("StoreForeign", "{0} holds something else than expected.");
	default:
		return LOCTEXT("StoreOther", "{0} can't be used ({1}).");
	}
}

FText FStoreError::Describe(const FString& File) const
{
	return FText::Format(GetSentence(*this), FText::FromString(File), FText::FromString(Detail));
}

#undef LOCTEXT_NAMESPACE
