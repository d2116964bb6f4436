// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/PlayStep.h"

class FPlayArguments;

// Reads a command with its arguments. What can't be read is noted in the arguments, and the step is then of no use.
FPlayStep ParsePlayStep(FPlayArguments& Arguments);
