// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

#include <gtest/gtest.h>
#include <ostream>

// How texts stand in the messages of failed expectations.

void PrintTo(const FString& String, std::ostream* Stream);
void PrintTo(const FStringView& View, std::ostream* Stream);
void PrintTo(const FName& Name, std::ostream* Stream);
void PrintTo(const FText& Text, std::ostream* Stream);
void PrintTo(const FVector2D& Vector, std::ostream* Stream);
void PrintTo(const FLinearColor& Color, std::ostream* Stream);
void PrintTo(const FColor& Color, std::ostream* Stream);

// Lets a test add texts to a message: EXPECT_TRUE(...) << Name.
std::ostream& operator<<(std::ostream& Stream, const FString& String);
std::ostream& operator<<(std::ostream& Stream, const FName& Name);
std::ostream& operator<<(std::ostream& Stream, const FText& Text);

// Equal unit by unit; EXPECT_EQ of two FStrings ignores case, as their operator does.
#define EXPECT_TEXT(Actual, Expected) EXPECT_PRED_FORMAT2(CompareTexts, Actual, Expected)
testing::AssertionResult CompareTexts(
	const char* ActualExpression, const char* ExpectedExpression, FStringView Actual, FStringView Expected);
