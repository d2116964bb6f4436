// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/KeyStroke.h"
#include "Play/PlayStep.h"

struct FContentSize;

// What a user does. Each goes through input events, and fails where a user could not do it.
namespace PlayActions
{
FPlayStep Open(const FString& Label);
FPlayStep Focus(const FString& HintOrText);
FPlayStep Type(const FString& Text);
FPlayStep Press(const FKeyStroke& Stroke);
FPlayStep Click(const FString& Text, const TOptional<int32>& Count);
FPlayStep Hover(const FString& Text, const TOptional<int32>& Count);
// Away from the user where positive.
FPlayStep Wheel(const FString& Text, int32 Notches);
FPlayStep Resize(const FContentSize& Size);
FPlayStep Sleep(double Seconds);
} // namespace PlayActions
