// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/AnswerNote.h"

#define LOCTEXT_NAMESPACE "VorelClient"

FString GetAnswerNote(EAnswerEnd End)
{
	switch (End)
	{
	case EAnswerEnd::LengthLimit:
		return TEXT("\n\n") + LOCTEXT("LengthNote", "*The answer ends here because it reached the assistant's length limit.*").ToString();
	case EAnswerEnd::ContentFilter:
		return TEXT("\n\n") + LOCTEXT("FilterNote", "*The rest was withheld by the content rules of the assistant's provider.*").ToString();
	case EAnswerEnd::Failed:
		return TEXT("\n\n") + LOCTEXT("InterruptedNote", "*The answer was interrupted here.*").ToString();
	default:
		return FString();
	}
}

#undef LOCTEXT_NAMESPACE
