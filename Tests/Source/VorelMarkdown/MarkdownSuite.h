// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <string_view>
#include <vector>

// The public suites of Markdown examples. They are not part of this project: test.sh fetches them.

struct FSuiteExample
{
	int Number;
	// The word behind "example", which names what the example needs beyond CommonMark; mostly empty.
	std::string Extension;
	std::string Markdown;
	std::string Html;
};

// The text of "commonmark" or "gfm", which is a Markdown document itself. Fails the test, and says what to do, where it is missing.
std::string LoadSuiteText(std::string_view Name);

std::vector<FSuiteExample> ReadSuite(std::string_view Text);
