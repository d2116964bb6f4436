// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <string_view>
#include <vector>

// The code of all fenced blocks of a document, the last of which may still be open, without their last newlines. Told line by line, for
// documents that indent with blanks and have fences in quotes and lists.
std::vector<std::string> FindFencedCode(std::string_view Markdown);
