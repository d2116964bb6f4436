// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SLoadingAnimation.h"

#include "Widgets/Images/SImage.h"
#include "Widgets/SBoxPanel.h"

void SLoadingAnimation::Construct(const FArguments& InArgs)
{
	Args = InArgs;
	Initialize();
	ChildSlot[ConstructInterface()];
}

void SLoadingAnimation::Initialize()
{
	Color = Args._Color;
	Size = Args._Size;
	Speed = Args._Speed;
}

// clang-format off
TSharedRef<SWidget> SLoadingAnimation::ConstructInterface()
{
	// The wave runs through the dots in the order of building, which one expression would leave open.
	const TSharedRef<SWidget> Left = ConstructAnimatedIcon();
	const TSharedRef<SWidget> Middle = ConstructAnimatedIcon();
	const TSharedRef<SWidget> Right = ConstructAnimatedIcon();
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.Padding(0.0f, 0.0f, 3.0f, 0.0f)
		[
			Left
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.Padding(0.0f, 0.0f, 3.0f, 0.0f)
		[
			Middle
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		[
			Right
		];
}

TSharedRef<SWidget> SLoadingAnimation::ConstructAnimatedIcon()
{
	const float Edge = Size.Get();
	const TSharedRef<SImage> Dot = SNew(SImage)
		.Image(FVorelAIStyle::Get().GetBrush("VorelAI.Icon.FilledCircle"))
		.ColorAndOpacity(Color)
		.DesiredSizeOverride(FVector2D(Edge, Edge));
	Dots.Add(Dot);
	return Dot;
}
// clang-format on

void SLoadingAnimation::Tick(const FGeometry& AllottedGeometry, const double CurrentTime, const float DeltaTime)
{
	SCompoundWidget::Tick(AllottedGeometry, CurrentTime, DeltaTime);

	Phase += DeltaTime * Speed.Get();
	for (int32 Index = 0; Index < Dots.Num(); ++Index)
	{
		const float Delay = static_cast<float>(Index) * 0.33f;
		const float Wave = FMath::Sin((Phase - Delay) * 4.0f * Speed.Get());
		const float Offset = Wave * 3.0f;
		Dots[Index]->SetRenderTransform(FSlateRenderTransform(FVector2D(0.0, Offset)));
	}
}
