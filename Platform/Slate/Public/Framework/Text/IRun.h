// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextRange.h"
#include "Fonts/TextShaper.h"
#include "Math/Vector2D.h"

/** What the markup said about a run: the name in its tag, and its attributes. */
struct FRunInfo
{
	FString Name;
	TMap<FString, FString> MetaData;

	FRunInfo() = default;
	explicit FRunInfo(FString InName)
		: Name(MoveTemp(InName))
	{
	}

	bool operator==(const FRunInfo& Other) const;
};

enum class ERunAttributes : uint8
{
	/** One object that stands for all its text. */
	None,
	SupportsText
};

/** How a stretch of a run, which never spans two bidi levels, is to be shaped. */
struct FRunTextContext
{
	ETextShapingMethod TextShapingMethod = ETextShapingMethod::Auto;
	TextBiDi::ETextDirection TextDirection = TextBiDi::ETextDirection::LeftToRight;
};

/**
 * A stretch of a model line that is styled as one. Ranges are into the line's model text; all sizes are in device pixels.
 * The layout measures runs in small stretches, about a word each, and never asks a font itself.
 */
class IRun
{
public:
	virtual ~IRun() = default;

	virtual const FRunInfo& GetRunInfo() const = 0;
	virtual FTextRange GetTextRange() const = 0;
	virtual ERunAttributes GetRunAttributes() const = 0;

	/** How far the bottom of the run is above the baseline: negative for text, whose descenders reach below it. */
	virtual int32 GetBaseLine(float Scale) const = 0;
	virtual int32 GetMaxHeight(float Scale) const = 0;

	virtual FVector2D Measure(int32 StartIndex, int32 EndIndex, float Scale, const FRunTextContext& TextContext) const = 0;

	/** The caret before `Index`, which lies inside a measured stretch, from the left edge of that stretch. */
	virtual float GetCaretOffset(const FTextRange& Stretch, int32 Index, float Scale, const FRunTextContext& TextContext) const = 0;

	/** Whether a line that holds the other run in this one's place would look and measure the same. */
	virtual bool IsSameAs(const IRun& Other) const = 0;
};
