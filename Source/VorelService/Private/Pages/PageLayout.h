// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Pages/Pages.h"

#include <string_view>

// The frame that all pages share. Title and Heading are plain text, Content is HTML.
std::string MakePage(std::string_view Title, std::string_view Heading, std::string_view Content);

// For text between tags and in quoted attributes.
std::string EscapeHtml(std::string_view Text);

std::string MakeHiddenInputs(const FHiddenFields& Fields);
