// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Decorators/CodeBlockStyle.h"

#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateTypes.h"
#include "Styling/StyleSheets/VorelAIStyle.h"

const FName FCodeBlockStyle::StyleSetName("FCodeBlockStyle");
FCodeBlockStyle* FCodeBlockStyle::Instance = nullptr;

FCodeBlockStyle::FCodeBlockStyle()
	: FSlateStyleSet(StyleSetName)
{
	const FTextBlockStyle NormalText = FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Console");
	Set("TextEditor.NormalText", NormalText);

	const auto SetColored = [this, &NormalText](const FName& Name, const FLinearColor& Color)
	{
		FTextBlockStyle Style = NormalText;
		Set(Name, Style.SetColorAndOpacity(Color));
	};
	SetColored("CodeBlock.Normal", FLinearColor(0.9f, 0.95f, 1.0f, 1.0f));
	SetColored("CodeBlock.Operator", FLinearColor(1.0f, 0.7f, 0.4f, 1.0f));
	SetColored("CodeBlock.Keyword", FLinearColor(1.0f, 0.7f, 0.4f, 1.0f));
	SetColored("CodeBlock.String", FLinearColor(0.5f, 0.9f, 0.4f, 1.0f));
	SetColored("CodeBlock.Number", FLinearColor(1.0f, 0.9f, 0.4f, 1.0f));
	SetColored("CodeBlock.Comment", FLinearColor(0.5f, 0.7f, 0.9f, 1.0f));
	SetColored("CodeBlock.PreProcessorKeyword", FLinearColor(1.0f, 0.6f, 1.0f, 1.0f));

	FSlateStyleRegistry::RegisterSlateStyle(*this);
}

FCodeBlockStyle::~FCodeBlockStyle()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*this);
}

const ISlateStyle& FCodeBlockStyle::Get()
{
	Initialize();
	return *Instance;
}

void FCodeBlockStyle::Initialize()
{
	if (Instance == nullptr)
	{
		Instance = new FCodeBlockStyle();
	}
}

void FCodeBlockStyle::Shutdown()
{
	const FCodeBlockStyle* Old = Instance;
	Instance = nullptr;
	delete Old;
}

const FName& FCodeBlockStyle::GetStyleSetName() const
{
	return StyleSetName;
}
