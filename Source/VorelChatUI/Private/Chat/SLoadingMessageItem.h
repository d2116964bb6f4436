// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

// Stands in the conversation while the assistant has not answered yet.
class VORELCHATUI_API SLoadingMessageItem : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SLoadingMessageItem) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	TSharedRef<SWidget> ConstructInterface() override;

private:
	FArguments Args;
};
