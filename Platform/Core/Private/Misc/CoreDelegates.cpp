// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/CoreDelegates.h"

FSimpleMulticastDelegate FCoreDelegates::ApplicationHasReactivatedDelegate;
