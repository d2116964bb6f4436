// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/WidgetSearch.h"

// The match that a hand goes to: equal ones come before those that only contain the text, and Count, from 1, follows the order of the tree.
// Without a count it is the first one in view. IsInView says whether the hand could reach a match. Null, with the reason, where there is
// none.
const FWidgetMatch* ChooseMatch(const TArray<FWidgetMatch>& Matches, const TOptional<int32>& Count,
	TFunctionRef<bool(const FWidgetMatch&)> IsInView, FString& OutProblem);
