// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayStep.h"

// What is saved. A file of the same name is replaced, missing folders are made; names count from the current folder.
namespace PlayFiles
{
FPlayStep Screenshot(const FString& File);
FPlayStep ScreenshotWindow(const FString& File);
FPlayStep Tree(const FString& File);
FPlayStep Clipboard(const FString& File);
FPlayStep SentToBrowser(const FString& File);
} // namespace PlayFiles
