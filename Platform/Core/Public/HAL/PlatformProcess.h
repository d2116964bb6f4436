// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Windows/WindowsPlatformProcess.h"
