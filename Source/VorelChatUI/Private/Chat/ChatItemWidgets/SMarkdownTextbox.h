// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SMultiLineEditableText;

// One message body: a single read-only rich text view over markup as UMarkdownParser gives it. A code block is one inline widget in it.
class VORELCHATUI_API SMarkdownTextbox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMarkdownTextbox) {}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetMarkdownText(const FString& Markup);

private:
	TSharedPtr<SMultiLineEditableText> TextBlock;
};
