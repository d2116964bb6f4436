// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "VorelLog.h"
#include "Decorators/CodeBlockStyle.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateTypes.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Support/TempFolder.h"
#include <gtest/gtest.h>

namespace
{

const ISlateStyle& Style()
{
	return FVorelAIStyle::Get();
}

FName NameIn(const char* Group, const char* Name)
{
	return FName(FString::Printf(TEXT("VorelAI.%hs%hs"), Group, Name));
}

FSlateColor Color(const char* Name)
{
	return Style().GetSlateColor(NameIn("Color.", Name), nullptr, FLinearColor(9.0f, 9.0f, 9.0f));
}

FTextBlockStyle Text(const char* Name)
{
	EXPECT_TRUE(Style().HasWidgetStyle<FTextBlockStyle>(NameIn("Typography.", Name))) << Name;
	return Style().GetWidgetStyle<FTextBlockStyle>(NameIn("Typography.", Name));
}

void ExpectRounded(const FSlateBrush& Brush, const char* ColorName, float Radius)
{
	EXPECT_EQ(Brush.DrawAs, ESlateBrushDrawType::RoundedBox) << ColorName;
	EXPECT_TRUE(Brush.TintColor == Color(ColorName)) << ColorName;
	EXPECT_TRUE(Brush.OutlineSettings == FSlateBrushOutlineSettings(Radius, FLinearColor::Transparent, 0.0f)) << ColorName;
}

} // namespace

TEST(VorelAIStyle, ColorsAndIconsComeFromTheThemeUnderOtherNames)
{
	EXPECT_TRUE(*Style().GetBrush("VorelAI.Icon.Send") == *FAppStyle::Get().GetBrush("Icons.ArrowRight"));
	EXPECT_TRUE(*Style().GetBrush("VorelAI.Icon.NewChat") == *FAppStyle::Get().GetBrush("Icons.Plus"));
	const std::pair<const char*, const char*> Rows[] = {{"Primary", "Primary"}, {"Background", "AccentBlack"}, {"Accent", "AccentBlue"},
		{"Info", "AccentBlue"}, {"Error", "AccentRed"}, {"Success", "AccentGreen"}, {"Gray0", "Black"}, {"Gray20", "AccentBlack"},
		{"Gray40", "Dropdown"}, {"Gray60", "AccentGray"}, {"Gray80", "Foreground"}, {"Gray100", "White"}};
	for (const auto& [Name, EngineName] : Rows)
	{
		const FName Source(FString::Printf(TEXT("Colors.%hs"), EngineName));
		EXPECT_TRUE(Color(Name) == FAppStyle::Get().GetSlateColor(Source, nullptr, FLinearColor(8.0f, 8.0f, 8.0f))) << Name;
	}
}

TEST(VorelAIStyle, TypographyDerivesFromEarlierEntries)
{
	const struct
	{
		const char* Name;
		const char* FaceWord;
		float Size;
		FSlateColor Color;
	} Rows[] = {{"Body", "Regular", 10, Color("White")}, {"BodySmallBold", "Bold", 8, Color("Foreground")},
		{"Tiny", "Regular", 6, Color("White")}, {"Header", "Regular", 14, Color("White")}, {"Subheader", "Regular", 12, Color("White")},
		{"SemiBold", "Medium", 10, Color("White")}, {"BoldCondensedItalic", "BoldCondensedItalic", 10, Color("White")},
		{"GrayItalic", "Italic", 10, FLinearColor(0.7f, 0.7f, 0.7f)}, {"Console", "Mono", 9, FTextBlockStyle().ColorAndOpacity}};
	for (const auto& Row : Rows)
	{
		EXPECT_TRUE(Text(Row.Name).Font == FCoreStyle::GetDefaultFontStyle(Row.FaceWord, Row.Size)) << Row.Name;
		EXPECT_TRUE(Text(Row.Name).ColorAndOpacity == Row.Color) << Row.Name;
	}
	EXPECT_TRUE(Text("Console").HighlightColor == FSlateColor(FLinearColor(0.2f, 0.35f, 0.5f)));
	EXPECT_TRUE(Text("Console").HighlightShape.Margin == FMargin(0.375f));
	EXPECT_EQ(ToUtf8(Text("Console").HighlightShape.GetResourceName().ToString()), "TextBlockHighlightShape.png");
}

TEST(VorelAIStyle, BackgroundsAreSolidOrRounded)
{
	const std::tuple<const char*, const char*, bool> Rows[] = {{"Transparent", "Transparent", false}, {"Primary", "Primary", true},
		{"Black", "Black", true}, {"Dark", "Gray20", true}, {"Medium", "Gray40", true}, {"Light", "Gray60", true},
		{"Success", "Success", false}, {"Error", "Error", false}, {"Info", "Info", false}};
	for (const auto& [Name, ColorName, bHasRounded] : Rows)
	{
		EXPECT_TRUE(Style().GetBrush(NameIn("Background.", Name))->TintColor == Color(ColorName)) << Name;
		for (const auto& [SizeName, Radius] : {std::pair(".Rounded.Small", 4.0f), {".Rounded.Medium", 8.0f}, {".Rounded.Large", 12.0f}})
		{
			const FName RoundedName = NameIn("Background.", (std::string(Name) + SizeName).c_str());
			const FSlateBrush* Rounded = Style().GetOptionalBrush(RoundedName, nullptr, nullptr);
			ASSERT_EQ(Rounded != nullptr, bHasRounded) << Name;
			if (Rounded != nullptr)
			{
				ExpectRounded(*Rounded, ColorName, Radius);
			}
		}
	}
}

TEST(VorelAIStyle, ButtonsAndHyperlinksHaveTheirColors)
{
	const struct
	{
		const char* Name;
		const char* Normal;
		const char* Hovered;
		const char* Pressed;
	} Buttons[] = {{"Primary", "Primary", "PrimaryHover", "PrimaryPress"}, {"Secondary", "Secondary", "Hover", "Hover2"},
		{"Transparent", "Transparent", "Hover", "Hover2"}};
	for (const auto& Row : Buttons)
	{
		const FButtonStyle& Button = Style().GetWidgetStyle<FButtonStyle>(NameIn("Button.", Row.Name));
		ExpectRounded(Button.Normal, Row.Normal, 2.0f);
		ExpectRounded(Button.Hovered, Row.Hovered, 2.0f);
		ExpectRounded(Button.Pressed, Row.Pressed, 2.0f);
		EXPECT_TRUE(Button.NormalPadding == FMargin(4.0f, 2.0f, 4.0f, 2.0f)) << Row.Name;
		EXPECT_TRUE(Button.PressedPadding == Button.NormalPadding) << Row.Name;
	}
	const FCheckBoxStyle& Toggle = Style().GetWidgetStyle<FCheckBoxStyle>("VorelAI.Button.Toggle");
	ExpectRounded(Toggle.UncheckedPressedImage, "Hover2", 2.0f);
	ExpectRounded(Toggle.CheckedImage, "Primary", 2.0f);

	const struct
	{
		const char* Name;
		const char* TextName;
		const char* ColorName;
		bool bUnderlined;
		float Raise;
	} Links[] = {{"", "Body", "Primary", true, 0.0f}, {".NoUnderline", "Body", "Primary", false, 0.0f},
		{".Small", "BodySmall", "Primary", true, 1.0f}, {".Secondary", "Body", "Foreground", true, 1.0f},
		{".Secondary.NoUnderline", "Body", "Foreground", false, 0.0f}, {".Secondary.Small", "BodySmall", "Foreground", true, 1.0f}};
	for (const auto& Row : Links)
	{
		const FHyperlinkStyle& Link = Style().GetWidgetStyle<FHyperlinkStyle>(NameIn("Hyperlink", Row.Name));
		EXPECT_TRUE(Link.TextStyle.Font == Text(Row.TextName).Font) << Row.Name;
		EXPECT_TRUE(Link.TextStyle.ColorAndOpacity == Color(Row.ColorName)) << Row.Name;
		EXPECT_EQ(Link.Padding.Bottom, Row.Raise) << Row.Name;
		const FSlateBrush& Underline = Link.UnderlineStyle.Normal;
		EXPECT_EQ(Underline == FButtonStyle::GetDefault().Normal, !Row.bUnderlined) << Row.Name;
		EXPECT_TRUE(!Row.bUnderlined || Underline.TintColor == Color(Row.ColorName)) << Row.Name;
	}
}

TEST(CodeBlockStyle, NumbersShareTheConsoleFont)
{
	EXPECT_TRUE(FCodeBlockStyle::Get().GetWidgetStyle<FTextBlockStyle>("CodeBlock.Number") ==
				Text("Console").SetColorAndOpacity(FLinearColor(1.0f, 0.9f, 0.4f)));
}

TEST(VorelAIStyle, StartsAndStopsAnyNumberOfTimesAndReportsMissingFiles)
{
	const FTempFolder Folder;
	Folder.Write(TEXT("VorelAI.uplugin"), R"({ "FileVersion": 3, "Modules": [] })");
	FVorelAIStyle::Shutdown();
	FVorelAIStyle::Shutdown();
	FVorelAIStyle::Get();
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("FVorelAIStyle"), nullptr);
	FVorelAIStyle::Shutdown();
	IPluginManager::Get().AddPluginSearchPath(Folder.GetPath());

	FLogCapture Log;
	FVorelAIStyle::Initialize();
	FVorelAIStyle::Initialize();
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("FVorelAIStyle"), &FVorelAIStyle::Get());
	const std::string Resources = ToUtf8(Folder.GetPath()) + "/Resources/";
	EXPECT_EQ(TakeLog(Log), "Warning: VorelAI logo image not found at path: " + Resources + "Logo500x105.png\n" +
								"Warning: Icon not found: " + Resources + "Success.png\n" + "Warning: Icon not found: " + Resources +
								"Error.png\n" + "Warning: Icon not found: " + Resources + "Info.png\n");
	for (const char* Name : {"Logo.Small", "Logo.Medium", "Logo.Large", "Icon.Error"})
	{
		const FSlateBrush* Brush = Style().GetOptionalBrush(NameIn(Name, ""), nullptr, nullptr);
		ASSERT_NE(Brush, nullptr) << Name;
		EXPECT_EQ(Brush->DrawAs, ESlateBrushDrawType::NoDrawType) << Name;
	}
	FVorelAIStyle::Shutdown();
	IPluginManager::Get().AddPluginSearchPath(FPaths::ProjectDir());
	FVorelAIStyle::Initialize();
	EXPECT_EQ(TakeLog(Log), "");
}
