// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FCodeBlockMarshaller;
class SMultiLineEditableText;

// One code block inside a message: highlighted, read-only code that does not wrap, with a copy button in the corner.
class VORELCHATUI_API SCodeWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCodeWidget) {}
	SLATE_ARGUMENT(FText, Text)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

private:
	TSharedRef<SWidget> MakeInterface();
	TSharedRef<SWidget> MakeCodeView();
	TSharedRef<SWidget> MakeCopyButton();
	FReply OnCopyClicked();

	FText CodeText;
	TSharedPtr<SMultiLineEditableText> CodeTextBox;
	TSharedPtr<FCodeBlockMarshaller> CodeMarshaller;
};
