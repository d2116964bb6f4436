// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/IRun.h"
#include "Templates/SharedPointer.h"

struct FTextBlockStyle;

/**
 * What many runs have in common. Returns an immutable copy: the one that other runs hold already, if any of the last few that were asked
 * for is equal.
 */
namespace RunLooks
{
TSharedRef<const FTextBlockStyle> Share(const FTextBlockStyle& Style);
TSharedRef<const FRunInfo> Share(const FRunInfo& RunInfo);
} // namespace RunLooks
