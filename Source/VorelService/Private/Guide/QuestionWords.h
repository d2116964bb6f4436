// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <vector>

struct FQuestionWords
{
	// What the question is about: lower case, each once, in order, without numbers and without what any question may hold ("how", "use",
	// "please").
	std::vector<std::string> Words;

	// It leans on the question before it, by a word such as "it" or "and", or by having no words of its own.
	bool bRefersBack = false;
};

// Only the first 64 words are taken, so that a pasted file costs no more than a question.
FQuestionWords GetQuestionWords(const std::string& Question);
