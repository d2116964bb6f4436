// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

// The service's description in OpenAPI 3.1, as JSON. Address: the service's own, without a slash at its end.
std::string MakeOpenApi(const std::string& Address);
