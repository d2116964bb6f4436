// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/EmojiSegments.h"
#include "Fonts/FontFaces.h"
#include "Fonts/QtShapedText.h"

#include <QHash>
#include <QRawFont>

/** Shapes text with Qt's text engine: features, fallback and caret positions of any script. */
class FQtTextShaper : public ITextShaper
{
public:
	TSharedRef<const FShapedText> Shape(
		FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod Method) override;
	FFontMetrics GetMetrics(const FSlateFontInfo& Font, float Scale) override;

private:
	/** Appends a laid-out segment to the right of what Shaped holds already; its units stand at `Places` in the layout. */
	void AppendSegment(
		FQtShapedText& Shaped, const FPresentationSegment& Segment, const QTextLayout& Layout, const QList<int>& Places, float PixelSize);

	/** The font at another size, always the same object for the same two, so that its glyphs are drawn once. */
	QRawFont Resize(const QRawFont& Font, float PixelSize);

	FFontFaces Faces;
	QHash<float, QHash<QRawFont, QRawFont>> SizedFonts;
};
