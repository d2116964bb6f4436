// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Members of the description that are the same everywhere, each a JSON object.
extern const char* const OpenApiAccountPaths;
extern const char* const OpenApiChatPaths;
extern const char* const OpenApiPagePaths;
extern const char* const OpenApiSchemas;
extern const char* const OpenApiResponses;
