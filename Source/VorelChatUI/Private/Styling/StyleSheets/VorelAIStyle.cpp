// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/StyleSheets/VorelAIStyle.h"

#include "Brushes/SlateBoxBrush.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"

const FName FVorelAIStyle::StyleSetName("FVorelAIStyle");
FVorelAIStyle* FVorelAIStyle::Instance = nullptr;

FVorelAIStyle::FVorelAIStyle()
	: FSlateStyleSet(StyleSetName)
{
	SetColors();
	SetLogos();
	SetBackgrounds();
	SetRoundedBackgrounds();
	SetEngineIcons();
	SetFileIcons();
	SetTypography();
	SetConsoleText();
	SetButtons();
	SetToggle();
	SetComboBox();
	SetHyperlinks();
}

FVorelAIStyle::~FVorelAIStyle()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*this);
}

void FVorelAIStyle::Create()
{
	if (Instance == nullptr)
	{
		Instance = new FVorelAIStyle();
	}
}

const ISlateStyle& FVorelAIStyle::Get()
{
	Create();
	return *Instance;
}

void FVorelAIStyle::Initialize()
{
	Create();
	FSlateStyleRegistry::RegisterSlateStyle(*Instance);
}

void FVorelAIStyle::Shutdown()
{
	if (Instance != nullptr)
	{
		FSlateStyleRegistry::UnRegisterSlateStyle(*Instance);
		const FVorelAIStyle* Old = Instance;
		Instance = nullptr;
		delete Old;
	}
}

const FName& FVorelAIStyle::GetStyleSetName() const
{
	return StyleSetName;
}

void FVorelAIStyle::CopyColor(const FName& Name, const FName& EngineName)
{
	Set(Name, FAppStyle::Get().GetSlateColor(EngineName));
}

void FVorelAIStyle::SetColors()
{
	CopyColor("VorelAI.Color.Black", "Colors.Black");
	CopyColor("VorelAI.Color.White", "Colors.White");
	Set("VorelAI.Color.Transparent", FLinearColor::Transparent);
	CopyColor("VorelAI.Color.Primary", "Colors.Primary");
	CopyColor("VorelAI.Color.PrimaryHover", "Colors.PrimaryHover");
	CopyColor("VorelAI.Color.PrimaryPress", "Colors.PrimaryPress");
	CopyColor("VorelAI.Color.Secondary", "Colors.Secondary");
	CopyColor("VorelAI.Color.Hover", "Colors.Hover");
	CopyColor("VorelAI.Color.Hover2", "Colors.Hover2");
	CopyColor("VorelAI.Color.Background", "Colors.AccentBlack");
	CopyColor("VorelAI.Color.Header", "Colors.Header");
	CopyColor("VorelAI.Color.Foreground", "Colors.Foreground");
	CopyColor("VorelAI.Color.ForegroundHover", "Colors.ForegroundHover");
	CopyColor("VorelAI.Color.ForegroundInverted", "Colors.ForegroundInverted");
	CopyColor("VorelAI.Color.Accent", "Colors.AccentBlue");
	CopyColor("VorelAI.Color.Error", "Colors.AccentRed");
	CopyColor("VorelAI.Color.Success", "Colors.AccentGreen");
	CopyColor("VorelAI.Color.Info", "Colors.AccentBlue");
	CopyColor("VorelAI.Color.Gray0", "Colors.Black");
	CopyColor("VorelAI.Color.Gray20", "Colors.AccentBlack");
	CopyColor("VorelAI.Color.Gray40", "Colors.Dropdown");
	CopyColor("VorelAI.Color.Gray60", "Colors.AccentGray");
	CopyColor("VorelAI.Color.Gray80", "Colors.Foreground");
	CopyColor("VorelAI.Color.Gray100", "Colors.White");
}

FTextBlockStyle FVorelAIStyle::SetText(const FName& Name, const FTextBlockStyle& Base, const FName& FaceWord, float Size)
{
	FTextBlockStyle Style = Base;
	Style.SetFont(FCoreStyle::GetDefaultFontStyle(FaceWord, Size));
	Set(Name, Style);
	return Style;
}

void FVorelAIStyle::SetTypography()
{
	FTextBlockStyle Default = FTextBlockStyle::GetDefault();
	Default.SetColorAndOpacity(GetSlateColor("VorelAI.Color.White"));
	const FTextBlockStyle Body = SetText("VorelAI.Typography.Body", Default, "Regular", 10.0f);
	SetText("VorelAI.Typography.BodyBold", Body, "Bold", 10.0f);

	FTextBlockStyle Small = Body;
	Small.SetColorAndOpacity(GetSlateColor("VorelAI.Color.Foreground"));
	const FTextBlockStyle BodySmall = SetText("VorelAI.Typography.BodySmall", Small, "Regular", 8.0f);
	SetText("VorelAI.Typography.BodySmallBold", BodySmall, "Bold", 8.0f);

	SetText("VorelAI.Typography.Tiny", Body, "Regular", 6.0f);
	SetText("VorelAI.Typography.Header", Body, "Regular", 14.0f);
	SetText("VorelAI.Typography.Subheader", Body, "Regular", 12.0f);
	const FTextBlockStyle Italic = SetText("VorelAI.Typography.Italic", Body, "Italic", 10.0f);
	SetText("VorelAI.Typography.SemiBold", Body, "Medium", 10.0f);
	SetText("VorelAI.Typography.BoldItalic", Body, "BoldItalic", 10.0f);
	SetText("VorelAI.Typography.BoldCondensed", Body, "BoldCondensed", 10.0f);
	SetText("VorelAI.Typography.BoldCondensedItalic", Body, "BoldCondensedItalic", 10.0f);
	SetText("VorelAI.Typography.Black", Body, "Black", 10.0f);
	SetText("VorelAI.Typography.BlackItalic", Body, "BlackItalic", 10.0f);
	SetText("VorelAI.Typography.Light", Body, "Light", 10.0f);
	SetText("VorelAI.Typography.VeryLight", Body, "VeryLight", 10.0f);
	SetText("VorelAI.Typography.Mono", Body, "Mono", 10.0f);

	FTextBlockStyle GrayItalic = Italic;
	GrayItalic.SetColorAndOpacity(FLinearColor(0.7f, 0.7f, 0.7f, 1.0f));
	Set("VorelAI.Typography.GrayItalic", GrayItalic);
}

void FVorelAIStyle::SetConsoleText()
{
	// The set has no content root, so the highlight's path stays the bare file name.
	const FString HighlightShape = RootToContentDir(TEXT("TextBlockHighlightShape"), TEXT(".png"));
	Set("VorelAI.Typography.Console",
		FTextBlockStyle()
			.SetFont(FCoreStyle::GetDefaultFontStyle("Mono", 9.0f))
			.SetShadowOffset(FVector2D::ZeroVector)
			.SetShadowColorAndOpacity(FLinearColor::Black)
			.SetHighlightColor(FLinearColor(0.2f, 0.35f, 0.5f, 1.0f))
			.SetHighlightShape(FSlateBoxBrush(HighlightShape, FMargin(0.375f), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))));
}
