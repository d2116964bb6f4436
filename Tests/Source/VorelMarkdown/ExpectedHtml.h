// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "MarkdownSuite.h"

// What a reader of a message sees of an example, told from its HTML: each run's name in brackets before its text, without white space but
// in code. Marks of lists and tasks, rules and the addresses of links are added as messages show them.
std::string DescribeExpected(const FSuiteExample& Example);

// The same of markup. Addresses are compared as if nothing in them were encoded.
std::string DescribeMarkup(const std::string& Markup);
