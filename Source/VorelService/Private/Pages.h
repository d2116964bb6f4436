// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

// The web pages that the plug-in's links lead to, as complete HTML documents.
std::string MakeStartPage();
std::string MakeBillingPage();
