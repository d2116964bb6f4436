// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Text/ITextDecorator.h"

// Replaces a "code" run of the markup by an inline SCodeWidget. In the layout's model text the block is a single zero width space.
class FCodeBlockDecorator : public ITextDecorator
{
public:
	static TSharedRef<ITextDecorator> Create();

	bool Supports(const FTextRunParseResults& RunParseResult, const FString& Text) const override;

	TSharedRef<ISlateRun> Create(const TSharedRef<FTextLayout>& TextLayout, const FTextRunParseResults& RunParseResult,
		const FString& MarkupText, const TSharedRef<FString>& ModelText, const ISlateStyle* Style) override;
};
