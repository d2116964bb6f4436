// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/IRichTextMarkupParser.h"
#include "Templates/SharedPointer.h"

/**
 * Reads `<Name attribute="value">content</>`. A run lies within one line and ends at the first `</>`; tags inside it are text.
 * What is no such run is plain text, with its angle brackets. `&amp;`, `&lt;`, `&gt;` and `&quot;` are resolved once, everywhere.
 */
class FDefaultRichTextMarkupParser : public IRichTextMarkupParser
{
public:
	static TSharedRef<FDefaultRichTextMarkupParser> Create();

	virtual void Process(TArray<FTextLineParseResults>& Results, const FString& Input, FString& Output) override;
};
