// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Delegates/Delegate.h"

// Events of the application as a whole, on the game thread.
class FCoreDelegates
{
public:
	// A window of the application has come to the front again.
	static FSimpleMulticastDelegate ApplicationHasReactivatedDelegate;
};
