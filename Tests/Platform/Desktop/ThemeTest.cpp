// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Misc/Paths.h"
#include "Styling/AppStyle.h"
#include "Styling/SlateTypes.h"
#include "Styling/WidgetStyle.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

static FLinearColor ColorOf(const TCHAR* Name)
{
	const FLinearColor Missing(-1.0f, -1.0f, -1.0f);
	const FSlateColor Color = FAppStyle::Get().GetSlateColor(Name, nullptr, Missing);
	EXPECT_NE(Color.GetSpecifiedColor(), Missing) << FString(Name);
	return Color.GetSpecifiedColor();
}

static FLinearColor OnGround(const FLinearColor& Color, const FLinearColor& Ground)
{
	// Blended as the screen does it, in sRGB.
	const FColor Front = Color.ToFColor(true);
	const FColor Back = Ground.ToFColor(true);
	const auto Blend = [&](uint8 A, uint8 B)
	{
		return static_cast<uint8>(A * Color.A + B * (1.0f - Color.A) + 0.5f);
	};
	return FLinearColor(FColor(Blend(Front.R, Back.R), Blend(Front.G, Back.G), Blend(Front.B, Back.B)));
}

static float Luminance(const FLinearColor& Color)
{
	return 0.2126f * Color.R + 0.7152f * Color.G + 0.0722f * Color.B;
}

static float Contrast(const FLinearColor& Text, const FLinearColor& Ground)
{
	const float A = Luminance(OnGround(Text, Ground)) + 0.05f;
	const float B = Luminance(Ground) + 0.05f;
	return FMath::Max(A, B) / FMath::Min(A, B);
}

static FLinearColor Subdued(const FLinearColor& Foreground)
{
	return FWidgetStyle().SetForegroundColor(Foreground).GetSubduedForegroundColor();
}

TEST(ThemeContrast, TextIsReadableWhereItStands)
{
	const FLinearColor White = ColorOf(TEXT("Colors.White"));
	const FLinearColor Foreground = ColorOf(TEXT("Colors.Foreground"));
	// Of the colors of code, comments are the darkest.
	const std::pair<const char*, FLinearColor> Texts[] = {{"white", White}, {"foreground", Foreground}, {"white, subdued", Subdued(White)},
		{"foreground, subdued", Subdued(Foreground)}, {"gray italic", FLinearColor(0.7f, 0.7f, 0.7f)},
		{"code comment", FLinearColor(0.5f, 0.7f, 0.9f)}};
	for (const TCHAR* Ground : {TEXT("Colors.Black"), TEXT("Colors.AccentBlack"), TEXT("Colors.Dropdown")})
	{
		for (const auto& [Name, Text] : Texts)
		{
			EXPECT_GE(Contrast(Text, ColorOf(Ground)), 4.5f) << Name << " on " << FString(Ground);
		}
	}
	for (const TCHAR* Ground :
		{TEXT("Colors.AccentGray"), TEXT("Colors.Secondary"), TEXT("Colors.Hover"), TEXT("Colors.Hover2"), TEXT("Colors.PrimaryHover"),
			TEXT("Colors.PrimaryPress"), TEXT("Colors.AccentRed"), TEXT("Colors.AccentGreen"), TEXT("Colors.AccentBlue")})
	{
		EXPECT_GE(Contrast(White, ColorOf(Ground)), 4.5f) << "white on " << FString(Ground);
	}
	EXPECT_GE(Contrast(White, FTextBlockStyle::GetDefault().SelectedBackgroundColor.GetSpecifiedColor()), 4.5f) << "selected";
	EXPECT_GE(Contrast(ColorOf(TEXT("Colors.ForegroundInverted")), White), 4.5f);

	// The primary color serves as ground and as link.
	const FLinearColor Primary = ColorOf(TEXT("Colors.Primary"));
	for (const TCHAR* Other : {TEXT("Colors.White"), TEXT("Colors.AccentBlack"), TEXT("Colors.Dropdown"), TEXT("Colors.AccentGray")})
	{
		EXPECT_GE(Contrast(Primary, ColorOf(Other)), 3.5f) << FString(Other);
	}
}

TEST(Theme, EveryPictureIsThere)
{
	TArray<FString> Files = {FPaths::EngineContentDir() / TEXT("Old/HyperlinkUnderline.png"),
		FPaths::EngineContentDir() / TEXT("TextBlockHighlightShape.png"), FPaths::ProjectDir() / TEXT("Resources/White.png"),
		FPaths::ProjectDir() / TEXT("Resources/Icon128.png")};
	for (const char* Name : {"Icons.ArrowRight", "Icons.FilledCircle", "Icons.Plus", "Icons.Delete", "Icons.X", "Icons.ChevronDown",
			 "GenericCommands.Copy", "Symbols.Check", "ClassIcon.AIController"})
	{
		Files.Add(FAppStyle::Get().GetBrush(Name)->GetResourceName().ToString());
	}
	for (const FString& File : Files)
	{
		EXPECT_TRUE(FPaths::FileExists(File)) << File;
	}
}
