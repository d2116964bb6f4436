// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Styling/SlateColor.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SImage;

// Three dots that bob up and down in a travelling wave for as long as the widget is ticked.
class VORELCHATUI_API SLoadingAnimation : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SLoadingAnimation)
		: _Color(FVorelAIStyle::Get().GetSlateColor("VorelAI.Color.White"))
		, _Size(6.0f)
		, _Speed(1.0f)
	{
	}
	SLATE_ATTRIBUTE(FSlateColor, Color)
	// Edge of a dot in Slate units, read once.
	SLATE_ATTRIBUTE(float, Size)
	// Enters both the phase and the frequency: twice the speed is four times the frequency.
	SLATE_ATTRIBUTE(float, Speed)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void Initialize() override;
	TSharedRef<SWidget> ConstructInterface() override;

private:
	TSharedRef<SWidget> ConstructAnimatedIcon();
	void Tick(const FGeometry& AllottedGeometry, const double CurrentTime, const float DeltaTime) override;

	FArguments Args;
	TAttribute<FSlateColor> Color;
	TAttribute<float> Size;
	TAttribute<float> Speed;

	// Grows only; a collapsed widget isn't ticked, so its phase stands still.
	float Phase = 0.0f;
	TArray<TSharedPtr<SImage>> Dots;
};
