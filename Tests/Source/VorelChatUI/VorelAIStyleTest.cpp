// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "VorelLog.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateTypes.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Decorators/CodeBlockStyle.h"
#include <gtest/gtest.h>
#include <filesystem>
#include <fstream>

namespace
{

const ISlateStyle& Style()
{
	return FVorelAIStyle::Get();
}

FSlateColor Color(const char* Name)
{
	return Style().GetSlateColor(FName(FString::Printf(TEXT("VorelAI.Color.%hs"), Name)), nullptr, FLinearColor(9.0f, 9.0f, 9.0f));
}

FTextBlockStyle Text(const char* Name)
{
	const FName StyleName(FString::Printf(TEXT("VorelAI.Typography.%hs"), Name));
	EXPECT_TRUE(Style().HasWidgetStyle<FTextBlockStyle>(StyleName)) << Name;
	return Style().GetWidgetStyle<FTextBlockStyle>(StyleName);
}

} // namespace

TEST(VorelAIStyle, ColorsComeFromTheThemeUnderOtherNames)
{
	const std::pair<const char*, const char*> Rows[] = {{"Primary", "Primary"}, {"Background", "AccentBlack"}, {"Accent", "AccentBlue"},
		{"Info", "AccentBlue"}, {"Error", "AccentRed"}, {"Success", "AccentGreen"}, {"Gray0", "Black"}, {"Gray20", "AccentBlack"},
		{"Gray40", "Dropdown"}, {"Gray60", "AccentGray"}, {"Gray80", "Foreground"}, {"Gray100", "White"}};
	for (const auto& [Name, EngineName] : Rows)
	{
		const FName Source(FString::Printf(TEXT("Colors.%hs"), EngineName));
		EXPECT_TRUE(Color(Name) == FAppStyle::Get().GetSlateColor(Source, nullptr, FLinearColor(8.0f, 8.0f, 8.0f))) << Name;
	}
	EXPECT_TRUE(Color("Transparent") == FSlateColor(FLinearColor::Transparent));
}

TEST(VorelAIStyle, TypographyDerivesFromEarlierEntries)
{
	struct FRow
	{
		const char* Name;
		const char* FaceWord;
		float Size;
		const char* ColorName;
	};
	const FRow Rows[] = {{"Body", "Regular", 10, "White"}, {"BodySmallBold", "Bold", 8, "Foreground"}, {"Tiny", "Regular", 6, "White"},
		{"Header", "Regular", 14, "White"}, {"Subheader", "Regular", 12, "White"}, {"SemiBold", "Medium", 10, "White"},
		{"BoldCondensedItalic", "BoldCondensedItalic", 10, "White"}, {"VeryLight", "VeryLight", 10, "White"},
		{"Mono", "Mono", 10, "White"}};
	for (const FRow& Row : Rows)
	{
		const FTextBlockStyle Found = Text(Row.Name);
		EXPECT_TRUE(Found.Font == FCoreStyle::GetDefaultFontStyle(Row.FaceWord, Row.Size)) << Row.Name;
		EXPECT_TRUE(Found.ColorAndOpacity == Color(Row.ColorName)) << Row.Name;
	}

	const FTextBlockStyle GrayItalic = Text("GrayItalic");
	EXPECT_TRUE(GrayItalic.Font == Text("Italic").Font);
	EXPECT_TRUE(GrayItalic.ColorAndOpacity == FSlateColor(FLinearColor(0.7f, 0.7f, 0.7f, 1.0f)));
}

TEST(VorelAIStyle, ConsoleTextIsBuiltApart)
{
	const FTextBlockStyle Console = Text("Console");
	EXPECT_TRUE(Console.Font == FCoreStyle::GetDefaultFontStyle("Mono", 9.0f));
	EXPECT_TRUE(Console.ColorAndOpacity == FTextBlockStyle().ColorAndOpacity);
	EXPECT_TRUE(Console.ShadowOffset == FVector2D(0.0, 0.0));
	EXPECT_TRUE(Console.ShadowColorAndOpacity == FLinearColor::Black);
	EXPECT_TRUE(Console.HighlightColor == FSlateColor(FLinearColor(0.2f, 0.35f, 0.5f, 1.0f)));
	EXPECT_EQ(Console.HighlightShape.DrawAs, ESlateBrushDrawType::Box);
	EXPECT_TRUE(Console.HighlightShape.Margin == FMargin(0.375f));
	EXPECT_EQ(ToUtf8(Console.HighlightShape.GetResourceName().ToString()), "TextBlockHighlightShape.png");
}

TEST(VorelAIStyle, BackgroundsAreSolidOrRounded)
{
	const std::pair<const char*, const char*> Rows[] = {{"Transparent", "Transparent"}, {"Primary", "Primary"}, {"Black", "Black"},
		{"Dark", "Gray20"}, {"Medium", "Gray40"}, {"Light", "Gray60"}, {"Success", "Success"}, {"Error", "Error"}, {"Info", "Info"}};
	const std::pair<const char*, double> Sizes[] = {{"Small", 4.0}, {"Medium", 8.0}, {"Large", 12.0}};
	for (const auto& [Name, ColorName] : Rows)
	{
		const FString Solid = FString::Printf(TEXT("VorelAI.Background.%hs"), Name);
		const FSlateBrush* Brush = Style().GetOptionalBrush(FName(Solid), nullptr, nullptr);
		ASSERT_NE(Brush, nullptr) << Name;
		EXPECT_TRUE(Brush->TintColor == Color(ColorName)) << Name;

		const bool bHasRounded = FStringView(TEXT("Black Primary Dark Medium Light")).Contains(FString(Name));
		for (const auto& [SizeName, Radius] : Sizes)
		{
			const FString RoundedName = FString::Printf(TEXT("%s.Rounded.%hs"), *Solid, SizeName);
			const FSlateBrush* Rounded = Style().GetOptionalBrush(FName(RoundedName), nullptr, nullptr);
			ASSERT_EQ(Rounded != nullptr, bHasRounded) << ToUtf8(RoundedName);
			if (Rounded != nullptr)
			{
				EXPECT_EQ(Rounded->DrawAs, ESlateBrushDrawType::RoundedBox);
				EXPECT_TRUE(Rounded->TintColor == Color(ColorName));
				const FSlateBrushOutlineSettings Outline(static_cast<float>(Radius), FLinearColor::Transparent, 0.0f);
				EXPECT_TRUE(Rounded->OutlineSettings == Outline) << ToUtf8(RoundedName);
			}
		}
	}
}

TEST(VorelAIStyle, IconsAndLogosAreThere)
{
	EXPECT_TRUE(*Style().GetBrush("VorelAI.Icon.Send") == *FAppStyle::Get().GetBrush("Icons.ArrowRight"));
	EXPECT_TRUE(*Style().GetBrush("VorelAI.Icon.NewChat") == *FAppStyle::Get().GetBrush("Icons.Plus"));
	for (const char* Name : {"Success", "Error", "Info"})
	{
		const FSlateBrush* Brush = Style().GetBrush(FName(FString::Printf(TEXT("VorelAI.Icon.%hs"), Name)));
		EXPECT_TRUE(Brush->GetResourceName().ToString().EndsWith(FString::Printf(TEXT("/Resources/%hs.png"), Name)));
		EXPECT_TRUE(Brush->ImageSize == FVector2D(16.0, 16.0));
	}
	EXPECT_TRUE(Style().GetBrush("VorelAI.Logo.Small")->ImageSize == FVector2D(125.0, 26.25));
	EXPECT_TRUE(Style().GetBrush("VorelAI.Logo.Medium")->ImageSize == FVector2D(250.0, 52.5));
	EXPECT_TRUE(Style().GetBrush("VorelAI.Logo.Large")->ImageSize == FVector2D(500.0, 105.0));
	EXPECT_TRUE(Style().GetBrush("VorelAI.Logo.Large")->GetResourceName().ToString().EndsWith(TEXT("/Resources/Logo500x105.png")));
}

TEST(VorelAIStyle, ButtonsShareTheirPaddings)
{
	const auto ExpectBrush = [](const FSlateBrush& Brush, const char* ColorName)
	{
		EXPECT_TRUE(Brush.TintColor == Color(ColorName)) << ColorName;
		EXPECT_EQ(Brush.OutlineSettings.CornerRadii.X, 2.0f);
	};
	struct FRow
	{
		const char* Name;
		const char* Normal;
		const char* Hovered;
		const char* Pressed;
	};
	const FRow Rows[] = {{"Primary", "Primary", "PrimaryHover", "PrimaryPress"}, {"Secondary", "Secondary", "Hover", "Hover2"},
		{"Transparent", "Transparent", "Hover", "Hover2"}};
	for (const FRow& Row : Rows)
	{
		const FName Name(FString::Printf(TEXT("VorelAI.Button.%hs"), Row.Name));
		const FButtonStyle& Button = Style().GetWidgetStyle<FButtonStyle>(Name);
		ExpectBrush(Button.Normal, Row.Normal);
		ExpectBrush(Button.Hovered, Row.Hovered);
		ExpectBrush(Button.Pressed, Row.Pressed);
		EXPECT_TRUE(Button.NormalPadding == FMargin(4.0f, 2.0f, 4.0f, 2.0f)) << Row.Name;
		EXPECT_TRUE(Button.PressedPadding == FMargin(4.0f, 2.0f, 4.0f, 2.0f)) << Row.Name;
		EXPECT_TRUE(Button.NormalForeground == FAppStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder").NormalForeground);
	}

	const FCheckBoxStyle& Toggle = Style().GetWidgetStyle<FCheckBoxStyle>("VorelAI.Button.Toggle");
	ExpectBrush(Toggle.UncheckedPressedImage, "Hover2");
	ExpectBrush(Toggle.CheckedImage, "Primary");

	const FComboBoxStyle& ComboBox = Style().GetWidgetStyle<FComboBoxStyle>("VorelAI.ComboBox");
	ExpectBrush(ComboBox.ComboButtonStyle.ButtonStyle.Normal, "Secondary");
	EXPECT_TRUE(ComboBox.ComboButtonStyle.ContentPadding == FMargin(8.0f, 2.0f, 8.0f, 2.0f));
	EXPECT_TRUE(ComboBox.ComboButtonStyle.DownArrowPadding == FMargin(2.0f, 2.0f, 2.0f, 2.0f));
	EXPECT_TRUE(ComboBox.ContentPadding == FMargin(8.0f, 2.0f, 8.0f, 2.0f));
}

TEST(VorelAIStyle, HyperlinksComeInSixForms)
{
	struct FRow
	{
		const char* Name;
		const char* TextName;
		const char* ColorName;
		const char* UnderlineColor;
		bool bRaised;
	};
	const FRow Rows[] = {{"", "Body", "Primary", "Primary", false}, {".NoUnderline", "Body", "Primary", nullptr, false},
		{".Small", "BodySmall", "Primary", "Primary", true}, {".Secondary", "Body", "Foreground", "Foreground", true},
		{".Secondary.NoUnderline", "Body", "Foreground", nullptr, false},
		{".Secondary.Small", "BodySmall", "Foreground", "Foreground", true}};
	for (const FRow& Row : Rows)
	{
		const FName Name(FString::Printf(TEXT("VorelAI.Hyperlink%hs"), Row.Name));
		ASSERT_TRUE(Style().HasWidgetStyle<FHyperlinkStyle>(Name)) << Row.Name;
		const FHyperlinkStyle& Link = Style().GetWidgetStyle<FHyperlinkStyle>(Name);
		EXPECT_TRUE(Link.TextStyle.Font == Text(Row.TextName).Font) << Row.Name;
		EXPECT_TRUE(Link.TextStyle.ColorAndOpacity == Color(Row.ColorName)) << Row.Name;
		const FMargin Copied = FAppStyle::Get().GetWidgetStyle<FHyperlinkStyle>("Hyperlink").Padding;
		EXPECT_TRUE(Link.Padding == (Row.bRaised ? FMargin(0.0f, 0.0f, 0.0f, 1.0f) : Copied)) << Row.Name;
		const FSlateBrush& Underline = Link.UnderlineStyle.Normal;
		if (Row.UnderlineColor == nullptr)
		{
			EXPECT_TRUE(Underline == FButtonStyle::GetDefault().Normal) << Row.Name;
			continue;
		}
		EXPECT_EQ(Underline.DrawAs, ESlateBrushDrawType::Border);
		EXPECT_TRUE(Underline.Margin == FMargin(0.0f, 0.0f, 0.0f, 0.1875f)) << Row.Name;
		EXPECT_TRUE(Underline.TintColor == Color(Row.UnderlineColor)) << Row.Name;
		EXPECT_EQ(Link.UnderlineStyle.Pressed.DrawAs, ESlateBrushDrawType::NoDrawType) << Row.Name;
	}
}

TEST(VorelAIStyle, InitializeRegistersAndShutdownMayBeRepeated)
{
	FVorelAIStyle::Shutdown();
	FVorelAIStyle::Get();
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("FVorelAIStyle"), nullptr);
	FVorelAIStyle::Initialize();
	FVorelAIStyle::Initialize();
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("FVorelAIStyle"), &FVorelAIStyle::Get());
	FVorelAIStyle::Shutdown();
	FVorelAIStyle::Shutdown();
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("FVorelAIStyle"), nullptr);
	FVorelAIStyle::Initialize();
}

TEST(CodeBlockStyle, ColorsShareTheConsoleFont)
{
	const auto Find = [](const FName& Name)
	{
		return FCodeBlockStyle::Get().GetWidgetStyle<FTextBlockStyle>(Name);
	};
	FTextBlockStyle Expected = Text("Console");
	EXPECT_TRUE(Find("TextEditor.NormalText") == Expected);
	EXPECT_TRUE(Find("CodeBlock.Comment") == Expected.SetColorAndOpacity(FLinearColor(0.5f, 0.7f, 0.9f)));
	EXPECT_TRUE(Find("CodeBlock.Number") == Expected.SetColorAndOpacity(FLinearColor(1.0f, 0.9f, 0.4f)));
	EXPECT_TRUE(Find("CodeBlock.Operator") == Find("CodeBlock.Keyword"));
}

TEST(VorelAIStyle, MissingFilesAreReportedAndTheirNamesDrawNothing)
{
	const std::filesystem::path Folder = std::filesystem::temp_directory_path() / "vorel-style-test";
	std::filesystem::create_directories(Folder);
	std::ofstream(Folder / "VorelAI.uplugin") << R"({ "FileVersion": 3, "Modules": [] })";
	FVorelAIStyle::Shutdown();
	IPluginManager::Get().AddPluginSearchPath(FString(Folder.c_str()));

	FLogCapture Log;
	FVorelAIStyle::Initialize();
	const std::string Resources = (Folder / "Resources/").string();
	EXPECT_EQ(TakeLog(Log), "Warning: VorelAI logo image not found at path: " + Resources + "Logo500x105.png\n" +
								"Warning: Icon not found: " + Resources + "Success.png\n" + "Warning: Icon not found: " + Resources +
								"Error.png\n" + "Warning: Icon not found: " + Resources + "Info.png\n");
	for (const char* Name : {"VorelAI.Logo.Small", "VorelAI.Logo.Medium", "VorelAI.Logo.Large", "VorelAI.Icon.Error"})
	{
		const FSlateBrush* Brush = Style().GetOptionalBrush(Name, nullptr, nullptr);
		ASSERT_NE(Brush, nullptr) << Name;
		EXPECT_EQ(Brush->DrawAs, ESlateBrushDrawType::NoDrawType) << Name;
	}

	FVorelAIStyle::Shutdown();
	IPluginManager::Get().AddPluginSearchPath(FPaths::ProjectDir());
	FVorelAIStyle::Initialize();
	EXPECT_EQ(TakeLog(Log), "");
	std::filesystem::remove_all(Folder);
}
