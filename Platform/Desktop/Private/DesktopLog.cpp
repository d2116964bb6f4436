// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "DesktopLog.h"

DEFINE_LOG_CATEGORY(LogDesktop);
