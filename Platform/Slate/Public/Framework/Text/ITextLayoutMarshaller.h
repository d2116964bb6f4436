// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class FTextLayout;

/** Carries a source text into the lines and runs of a layout, and back. */
class ITextLayoutMarshaller
{
public:
	virtual ~ITextLayoutMarshaller() = default;

	/** Appends the source's lines to the layout, which the caller has cleared. */
	virtual void SetText(const FString& SourceString, FTextLayout& TargetTextLayout) = 0;
	virtual void GetText(FString& TargetString, const FTextLayout& SourceTextLayout) = 0;

	/** Whether an edit of one line can change the runs of another, so that the whole text is set anew after each edit. */
	virtual bool RequiresLiveUpdate() const = 0;

	virtual void MakeDirty() = 0;
	virtual void ClearDirty() = 0;
	virtual bool IsDirty() const = 0;
};
