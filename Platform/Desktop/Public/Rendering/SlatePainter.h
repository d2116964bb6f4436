// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/SlateRect.h"
#include "Templates/UniquePtr.h"

class FImageCache;
class FSlateDrawChunk;
class QImage;

/** Draws what widgets drew into pictures of device pixels. Linear colors become sRGB here, and nowhere before. */
class FSlatePainter
{
public:
	FSlatePainter();
	~FSlatePainter();

	/** Clears Area of Target to the editor's ground, and draws what of Chunk lies in it. Nothing outside of Area is touched. */
	void Paint(QImage& Target, const FSlateDrawChunk& Chunk, const FSlateRect& Area);

private:
	TUniquePtr<FImageCache> Images;
};
