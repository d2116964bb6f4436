// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "UObject/Object.h"

// An outermost object.
class UPackage : public UObject
{
};
