// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Logging/LogMacros.h"

DECLARE_LOG_CATEGORY_EXTERN(LogDesktop, Log, All);
