// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <vector>

class FGuide;

// The Markdown answer to the last of a conversation's questions: says that it is the built-in guide's, shows the sections of the best
// article that fit, and names its sources; without an article, what the guide knows.
std::string ComposeGuideAnswer(const FGuide& Guide, const std::vector<std::string>& Questions);
