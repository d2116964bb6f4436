// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

class QApplication;

// Gives the window around the tabs the colors of the editor's style.
namespace FrameStyle
{
void Apply(QApplication& Application);
} // namespace FrameStyle
