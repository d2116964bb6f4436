// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Math/Color.h"

#include <QColor>
#include <QImage>

/** From linear light to the screen's sRGB. */
QColor ToScreenColor(const FLinearColor& Color);

/** Multiplies an image by a linear color, in linear light. */
QImage TintImage(const QImage& Image, const FLinearColor& Tint);
