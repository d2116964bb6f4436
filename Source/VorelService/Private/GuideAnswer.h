// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

class FGuide;

// The Markdown answer to one question: says that it is the built-in guide's, and names its articles; without one, what the guide knows.
std::string ComposeGuideAnswer(const FGuide& Guide, const std::string& Question);
