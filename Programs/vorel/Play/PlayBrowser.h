// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayStep.h"

// What a user does in the browser to which the program sends them.
namespace PlayBrowser
{
// Clicks "Log in", signs in on the page that this opens, and waits until the program is signed in. The password may be empty. Nothing where
// the user is signed in.
FPlayStep Login(const FString& Name, const FString& Password);

// Presses a button on the page that was opened last, and comes back to the window.
FPlayStep Press(const FString& Button);
} // namespace PlayBrowser
