// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Http/Route.h"

#include <vector>

struct FServiceParts;

// All that the service answers to. The parts must outlive the routes.
std::vector<FRoute> MakeRoutes(FServiceParts& Parts);
