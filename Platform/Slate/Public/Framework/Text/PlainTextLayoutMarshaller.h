// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/BaseTextLayoutMarshaller.h"
#include "Templates/SharedPointer.h"

/** Every line of the source is one run in the layout's default style. */
class FPlainTextLayoutMarshaller : public FBaseTextLayoutMarshaller
{
public:
	static TSharedRef<FPlainTextLayoutMarshaller> Create();

	virtual void SetText(const FString& SourceString, FTextLayout& TargetTextLayout) override;
	virtual void GetText(FString& TargetString, const FTextLayout& SourceTextLayout) override;
};
