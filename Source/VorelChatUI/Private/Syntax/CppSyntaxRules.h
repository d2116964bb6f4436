// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Text/SyntaxTokenizer.h"

// What is highlighted in C++. The order is kept for tokenizers that take the first rule that matches.
extern const TArray<FString> CppOperatorRules;
extern const TArray<FString> CppKeywordRules;
extern const TArray<FString> CppPreProcessorRules;

// With the rules of all three tables.
TSharedRef<FSyntaxTokenizer> CreateCppTokenizer();
