// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Content of the pages' one style element.
extern const char* const PageStyle;

// The logo: an SVG element whose lettering follows the color scheme.
extern const char* const PageLogo;

// Its square sign, as the address of an image.
extern const char* const PageIcon;
