// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <vector>

// The words that a question is about: lower case, each once, in order, without those that any question may hold ("how", "use", "please").
// Only the first 64 are taken, so that a pasted file costs no more than a question.
std::vector<std::string> GetQuestionWords(const std::string& Question);
