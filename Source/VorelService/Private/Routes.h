// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Http/Route.h"

#include <vector>

class FChatHandlers;
struct FServiceParts;

// All that the service answers to. What is given must outlive the routes.
std::vector<FRoute> MakeRoutes(FServiceParts& Parts, FChatHandlers& Chat);
