// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/StyleSheets/VorelAIStyle.h"

#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Interfaces/IPluginManager.h"
#include "LogVorel.h"
#include "Misc/Paths.h"
#include "Styling/AppStyle.h"

namespace
{

constexpr float ButtonRadius = 2.0f;

FString GetResourceDirectory()
{
	return FPaths::Combine(IPluginManager::Get().FindPlugin(TEXT("VorelAI"))->GetBaseDir(), TEXT("Resources"));
}

} // namespace

void FVorelAIStyle::SetLogos()
{
	const FString Path = FPaths::Combine(GetResourceDirectory(), TEXT("Logo500x105.png"));
	if (FPaths::FileExists(Path))
	{
		Set("VorelAI.Logo.Small", new FSlateImageBrush(Path, FVector2D(125.0f, 26.25f)));
		Set("VorelAI.Logo.Medium", new FSlateImageBrush(Path, FVector2D(250.0f, 52.5f)));
		Set("VorelAI.Logo.Large", new FSlateImageBrush(Path, FVector2D(500.0f, 105.0f)));
		return;
	}

	UE_LOG(LogVorel, Warning, TEXT("VorelAI logo image not found at path: %s"), *Path);
	for (const FName Name : {"VorelAI.Logo.Small", "VorelAI.Logo.Medium", "VorelAI.Logo.Large"})
	{
		Set(Name, new FSlateNoResource());
	}
}

void FVorelAIStyle::SetBackgrounds()
{
	const auto SetSolid = [this](const FName& Name, const FName& ColorName)
	{
		Set(Name, new FSlateColorBrush(GetSlateColor(ColorName)));
	};
	SetSolid("VorelAI.Background.Transparent", "VorelAI.Color.Transparent");
	SetSolid("VorelAI.Background.Primary", "VorelAI.Color.Primary");
	SetSolid("VorelAI.Background.Black", "VorelAI.Color.Black");
	SetSolid("VorelAI.Background.Dark", "VorelAI.Color.Gray20");
	SetSolid("VorelAI.Background.Medium", "VorelAI.Color.Gray40");
	SetSolid("VorelAI.Background.Light", "VorelAI.Color.Gray60");
	SetSolid("VorelAI.Background.Success", "VorelAI.Color.Success");
	SetSolid("VorelAI.Background.Error", "VorelAI.Color.Error");
	SetSolid("VorelAI.Background.Info", "VorelAI.Color.Info");
}

FSlateBrush FVorelAIStyle::MakeRoundedBrush(const FName& ColorName, float Radius) const
{
	return FSlateRoundedBoxBrush(GetSlateColor(ColorName), Radius, FLinearColor::Transparent, 0.0f);
}

void FVorelAIStyle::SetRoundedBackgrounds()
{
	const auto SetRounded = [this](const TCHAR* Name, const FName& ColorName)
	{
		const FString Prefix = FString::Printf(TEXT("VorelAI.Background.%s.Rounded."), Name);
		Set(FName(*(Prefix + TEXT("Small"))), new FSlateBrush(MakeRoundedBrush(ColorName, 4.0f)));
		Set(FName(*(Prefix + TEXT("Medium"))), new FSlateBrush(MakeRoundedBrush(ColorName, 8.0f)));
		Set(FName(*(Prefix + TEXT("Large"))), new FSlateBrush(MakeRoundedBrush(ColorName, 12.0f)));
	};
	SetRounded(TEXT("Black"), "VorelAI.Color.Black");
	SetRounded(TEXT("Primary"), "VorelAI.Color.Primary");
	SetRounded(TEXT("Dark"), "VorelAI.Color.Gray20");
	SetRounded(TEXT("Medium"), "VorelAI.Color.Gray40");
	SetRounded(TEXT("Light"), "VorelAI.Color.Gray60");
}

void FVorelAIStyle::CopyBrush(const FName& Name, const FName& EngineName)
{
	if (const FSlateBrush* Brush = FAppStyle::Get().GetOptionalBrush(EngineName, nullptr, nullptr))
	{
		Set(Name, new FSlateBrush(*Brush));
		return;
	}
	UE_LOG(LogVorel, Warning, TEXT("Brush not found: %s"), *EngineName.ToString());
	Set(Name, new FSlateNoResource());
}

void FVorelAIStyle::SetEngineIcons()
{
	CopyBrush("VorelAI.Icon.Send", "Icons.ArrowRight");
	CopyBrush("VorelAI.Icon.FilledCircle", "Icons.FilledCircle");
	CopyBrush("VorelAI.Icon.NewChat", "Icons.Plus");
	CopyBrush("VorelAI.Icon.Delete", "Icons.Delete");
	CopyBrush("VorelAI.Icon.Copy", "GenericCommands.Copy");
}

void FVorelAIStyle::LoadIcon(const FString& Directory, const FString& FileName, const FName& Name)
{
	const FString Path = FPaths::Combine(Directory, FileName);
	if (FPaths::FileExists(Path))
	{
		Set(Name, new FSlateImageBrush(Path, FVector2D(16.0f, 16.0f)));
		return;
	}
	UE_LOG(LogVorel, Warning, TEXT("Icon not found: %s"), *Path);
	Set(Name, new FSlateNoResource());
}

void FVorelAIStyle::SetFileIcons()
{
	const FString Directory = GetResourceDirectory();
	LoadIcon(Directory, TEXT("Success.png"), "VorelAI.Icon.Success");
	LoadIcon(Directory, TEXT("Error.png"), "VorelAI.Icon.Error");
	LoadIcon(Directory, TEXT("Info.png"), "VorelAI.Icon.Info");
}

void FVorelAIStyle::SetButtons()
{
	FButtonStyle Primary = FAppStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder");
	Primary.SetNormal(MakeRoundedBrush("VorelAI.Color.Primary", ButtonRadius))
		.SetHovered(MakeRoundedBrush("VorelAI.Color.PrimaryHover", ButtonRadius))
		.SetPressed(MakeRoundedBrush("VorelAI.Color.PrimaryPress", ButtonRadius))
		.SetNormalPadding(FMargin(4.0f, 2.0f, 4.0f, 2.0f))
		.SetPressedPadding(FMargin(4.0f, 2.0f, 4.0f, 2.0f));
	Set("VorelAI.Button.Primary", Primary);

	FButtonStyle Secondary = Primary;
	Secondary.SetNormal(MakeRoundedBrush("VorelAI.Color.Secondary", ButtonRadius))
		.SetHovered(MakeRoundedBrush("VorelAI.Color.Hover", ButtonRadius))
		.SetPressed(MakeRoundedBrush("VorelAI.Color.Hover2", ButtonRadius));
	Set("VorelAI.Button.Secondary", Secondary);

	FButtonStyle Transparent = Primary;
	Transparent.SetNormal(MakeRoundedBrush("VorelAI.Color.Transparent", ButtonRadius))
		.SetHovered(MakeRoundedBrush("VorelAI.Color.Hover", ButtonRadius))
		.SetPressed(MakeRoundedBrush("VorelAI.Color.Hover2", ButtonRadius));
	Set("VorelAI.Button.Transparent", Transparent);
}

void FVorelAIStyle::SetToggle()
{
	Set("VorelAI.Button.Toggle", FCheckBoxStyle()
									 .SetUncheckedImage(MakeRoundedBrush("VorelAI.Color.Secondary", ButtonRadius))
									 .SetUncheckedHoveredImage(MakeRoundedBrush("VorelAI.Color.Hover", ButtonRadius))
									 .SetUncheckedPressedImage(MakeRoundedBrush("VorelAI.Color.Hover2", ButtonRadius))
									 .SetCheckedImage(MakeRoundedBrush("VorelAI.Color.Primary", ButtonRadius))
									 .SetCheckedHoveredImage(MakeRoundedBrush("VorelAI.Color.PrimaryHover", ButtonRadius))
									 .SetCheckedPressedImage(MakeRoundedBrush("VorelAI.Color.PrimaryPress", ButtonRadius)));
}

void FVorelAIStyle::SetComboBox()
{
	FComboBoxStyle ComboBox = FAppStyle::Get().GetWidgetStyle<FComboBoxStyle>("SimpleComboBox");
	ComboBox.ComboButtonStyle.SetButtonStyle(GetWidgetStyle<FButtonStyle>("VorelAI.Button.Secondary"))
		.SetContentPadding(FMargin(8.0f, 2.0f, 8.0f, 2.0f))
		.SetDownArrowPadding(FMargin(2.0f, 2.0f, 2.0f, 2.0f));
	ComboBox.SetContentPadding(FMargin(8.0f, 2.0f, 8.0f, 2.0f));
	Set("VorelAI.ComboBox", ComboBox);
}

FButtonStyle FVorelAIStyle::MakeUnderline(const FName& NormalColor, const FName& HoveredColor) const
{
	const FString Path = FPaths::Combine(FAppStyle::Get().GetContentRootDir(), TEXT("Old/HyperlinkUnderline.png"));
	const FMargin Margin(0.0f, 0.0f, 0.0f, 0.1875f);
	return FButtonStyle()
		.SetNormal(FSlateBorderBrush(Path, Margin, GetSlateColor(NormalColor)))
		.SetHovered(FSlateBorderBrush(Path, Margin, GetSlateColor(HoveredColor)))
		.SetPressed(FSlateNoResource());
}

void FVorelAIStyle::SetHyperlinks()
{
	const FHyperlinkStyle Base = FAppStyle::Get().GetWidgetStyle<FHyperlinkStyle>("Hyperlink");
	const FButtonStyle Primary = MakeUnderline("VorelAI.Color.Primary", "VorelAI.Color.PrimaryHover");
	const FButtonStyle Secondary = MakeUnderline("VorelAI.Color.Foreground", "VorelAI.Color.ForegroundHover");
	const FButtonStyle& None = FButtonStyle::GetDefault();
	const FMargin AsCopied = Base.Padding;
	const FMargin Raised(0.0f, 0.0f, 0.0f, 1.0f);

	const auto SetLink = [this, &Base](const FName& Name, const FName& TextName, const FName& ColorName, const FButtonStyle& Underline,
							 const FMargin& Padding)
	{
		FTextBlockStyle Text = GetWidgetStyle<FTextBlockStyle>(TextName);
		Text.SetColorAndOpacity(GetSlateColor(ColorName));
		FHyperlinkStyle Link = Base;
		Set(Name, Link.SetTextStyle(Text).SetUnderlineStyle(Underline).SetPadding(Padding));
	};
	const FName Body("VorelAI.Typography.Body");
	const FName BodySmall("VorelAI.Typography.BodySmall");
	const FName PrimaryColor("VorelAI.Color.Primary");
	const FName ForegroundColor("VorelAI.Color.Foreground");
	SetLink("VorelAI.Hyperlink", Body, PrimaryColor, Primary, AsCopied);
	SetLink("VorelAI.Hyperlink.NoUnderline", Body, PrimaryColor, None, AsCopied);
	SetLink("VorelAI.Hyperlink.Small", BodySmall, PrimaryColor, Primary, Raised);
	SetLink("VorelAI.Hyperlink.Secondary", Body, ForegroundColor, Secondary, Raised);
	SetLink("VorelAI.Hyperlink.Secondary.NoUnderline", Body, ForegroundColor, None, AsCopied);
	SetLink("VorelAI.Hyperlink.Secondary.Small", BodySmall, ForegroundColor, Secondary, Raised);
}
