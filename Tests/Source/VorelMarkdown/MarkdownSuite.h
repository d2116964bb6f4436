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

std::string GetSuitePath(std::string_view Name);

// Fails the test, and says what to do, where there is no such file.
std::string LoadText(const std::string& Path);

// Of "commonmark" or "gfm", whose text is a Markdown document itself.
std::vector<FSuiteExample> ReadSuite(std::string_view Name);

// What a reader of a message sees of an example, told from its HTML: each run's name in brackets before its text, without white space but
// in code. Marks of lists and tasks, rules and the addresses of links are added as messages show them.
std::string DescribeExpected(const FSuiteExample& Example);

// The same of markup. Addresses are compared as if nothing in them were encoded.
std::string DescribeMarkup(const std::string& Markup);
