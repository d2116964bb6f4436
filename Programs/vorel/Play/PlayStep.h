// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class IPlayStage;

struct FPlayResult
{
	enum class EState : uint8
	{
		Done,
		NotYet,
		Failed
	};

	EState State = EState::Done;
	// Of a failure, for people; may have several lines.
	FString Problem;

	static FPlayResult Done() { return {}; }
	static FPlayResult NotYet() { return {EState::NotYet, FString()}; }
	static FPlayResult Fail(const FString& InProblem) { return {EState::Failed, InProblem}; }
};

// Called again and again until it is done or has failed, with the seconds since its first call. Everything that was set off before has been
// laid out and painted.
using FPlayStep = TFunction<FPlayResult(IPlayStage& Stage, double Seconds)>;
