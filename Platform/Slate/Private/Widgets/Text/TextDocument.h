// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/SlateTextLayout.h"

class ITextLayoutMarshaller;

/** The text of an editable view: the lines of its layout, which a marshaller fills. Has at least one line. */
class FTextDocument
{
public:
	FTextDocument(const TSharedRef<FSlateTextLayout>& InLayout, const TSharedRef<ITextLayoutMarshaller>& InMarshaller);

	void SetText(const FString& Text);
	FString GetText() const;
	FString GetText(const FTextSelection& Range) const;

	/** Returns the end of the new text, which holds no carriage returns. */
	FTextLocation Replace(const FTextSelection& Range, FStringView NewText);

	FTextLocation GetEnd() const { return Layout->GetEnd(); }
	/** The nearest place that exists. */
	FTextLocation Clamp(const FTextLocation& Location) const;
	/** So many UTF-16 units further, where a line end counts one; negative for back. Stops at the ends of the text. */
	FTextLocation Advance(FTextLocation Location, int32 Units) const;

	FSlateTextLayout& GetLayout() const { return *Layout; }

private:
	TSharedRef<FSlateTextLayout> Layout;
	TSharedRef<ITextLayoutMarshaller> Marshaller;
};

/**
 * Text from outside as it may stand in a document: line ends become LF, or blanks where there may be only one line, and control characters
 * other than the tab are left out.
 */
FString CleanInputText(FStringView Text, bool bAllowMultiLine);
