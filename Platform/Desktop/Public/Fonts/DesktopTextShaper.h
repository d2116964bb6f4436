// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/TextShaper.h"

/** Shapes with the fonts that the editor is drawn with. Needs a QGuiApplication. */
TUniquePtr<ITextShaper> MakeDesktopTextShaper();
