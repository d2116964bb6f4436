// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Map.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

#include <QFont>
#include <QTextLayout>

/** How letters may combine: with every feature of the font, or with kerning alone. Scripts that need shaping get it in both. */
enum class EFontFeatures : uint8
{
	All,
	KerningOnly
};

/** Vertical measures of a face, as parts of its size. */
struct FFaceMeasures
{
	float Ascent = 0.0f;
	float Descent = 0.0f;
	float LineGap = 0.0f;
	/** From the baseline down to the middle of the underline. */
	float UnderlineOffset = 0.0f;
	float UnderlineThickness = 0.0f;
};

/** One face with the layouts that shape its text. */
class FFontFace
{
public:
	/**
	 * Text is shaped at this size and scaled, so that its advances grow linearly and a size may be any fraction. An advance is exact to
	 * 1/8192 em; a larger size would be more exact, and slower, since the font engine keeps no large glyphs.
	 */
	static constexpr int ShapingPixelSize = 128;

	FFontFace(const QFont& InFont, bool bInMonospaced);

	const FFaceMeasures& GetMeasures() const { return Measures; }
	QTextLayout& GetLayout(EFontFeatures Features) { return Features == EFontFeatures::All ? FullLayout : KerningLayout; }

private:
	FFaceMeasures Measures;
	QTextLayout FullLayout;
	QTextLayout KerningLayout;
};

/** All faces by their word ("Regular", "BoldItalic", "Mono" ...), loaded from their packages on first use. */
class FFontFaces
{
public:
	/** An unknown word yields the face of "Regular". */
	FFontFace& Find(const FName& Word);

	/** The face of emoji; in colour. */
	FFontFace& GetEmoji();

private:
	TMap<FName, TSharedPtr<FFontFace>> Faces;
	TSharedPtr<FFontFace> Emoji;
};
