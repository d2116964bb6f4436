// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Input/Events.h"

/** "Ctrl+Shift+Z", "Enter"; a word that is no key's name fails the test. */
FKeyEvent ParseKeyEvent(const FString& KeyWithModifiers);
