// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

namespace EMouseCursor
{
enum Type : uint8
{
	Default,
	TextEditBeam,
	Hand
};
}
