// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Math/Color.h"

#include <QRectF>

class FImageCache;
class QPainter;
struct FSlateBrush;

/** Where a box goes: a rectangle of the painter's space, and its pixels per unit of the brush. */
struct FBoxPlace
{
	QRectF Rect;
	double Scale;
};

/** Fills a place with a brush. The tint is final: the brush's own is not looked at. */
void PaintBox(QPainter& Painter, FImageCache& Images, const FSlateBrush& Brush, const FBoxPlace& Place, const FLinearColor& Tint);
