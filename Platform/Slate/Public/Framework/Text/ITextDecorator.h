// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/IRichTextMarkupParser.h"
#include "Framework/Text/ISlateRun.h"
#include "Templates/SharedPointer.h"

class FTextLayout;
class ISlateStyle;

/** Makes the runs for some sort of markup, a widget for instance. */
class ITextDecorator
{
public:
	virtual ~ITextDecorator() = default;

	virtual bool Supports(const FTextRunParseResults& RunParseResult, const FString& Text) const = 0;

	/**
	 * Appends to `ModelText` what shall stand in the line's model for the run, at least one character, and returns the run over it.
	 * The ranges of `RunParseResult` are into `Text`.
	 */
	virtual TSharedRef<ISlateRun> Create(const TSharedRef<FTextLayout>& TextLayout, const FTextRunParseResults& RunParseResult,
		const FString& Text, const TSharedRef<FString>& ModelText, const ISlateStyle* Style) = 0;
};
