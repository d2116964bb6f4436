// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "VorelLog.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/StyleSheets/VorelMarkdownStyle.h"
#include <gtest/gtest.h>

namespace
{

FTextBlockStyle Find(const char* Name)
{
	const FString FullName = FString::Printf(TEXT("VorelMarkdown.%hs"), Name);
	EXPECT_TRUE(FVorelMarkdownStyle::Get().HasStyle(FullName)) << Name;
	return FVorelMarkdownStyle::Get().GetStyle(FullName);
}

bool Has(const char* Name)
{
	return FVorelMarkdownStyle::Get().HasStyle(FString::Printf(TEXT("VorelMarkdown.%hs"), Name));
}

FSlateFontInfo Font(const char* FaceWord, float Size)
{
	return FCoreStyle::GetDefaultFontStyle(FaceWord, Size);
}

const FSlateColor CodeColor(FLinearColor(1.0f, 0.7f, 0.4f, 1.0f));

} // namespace

TEST(VorelMarkdownStyle, StartingLogsTheOneExpectedWarning)
{
	FVorelMarkdownStyle::Shutdown();
	FLogCapture Log;
	FVorelMarkdownStyle::Initialize();
	EXPECT_EQ(TakeLog(Log), "Warning: BlockStyle CodeBlock not found in Styles\n");
}

TEST(VorelMarkdownStyle, HoldsEveryCombinationOnceAndPublishesIt)
{
	TArray<FString> Lines;
	FVorelMarkdownStyle::GetDemoText().ParseIntoArrayLines(Lines);
	int32 NumStyles = 0;
	TSet<FString> Names;
	for (const FString& Line : Lines)
	{
		FString Name;
		FString Rest;
		if (Line.StartsWith(TEXT(" <VorelMarkdown.")) && Line.RightChop(2).Split(TEXT("> This is text in "), &Name, &Rest))
		{
			++NumStyles;
			Names.Add(Name);
			EXPECT_TRUE(FVorelMarkdownStyle::Get().HasWidgetStyle<FTextBlockStyle>(FName(Name))) << ToUtf8(Name);
		}
	}
	EXPECT_EQ(NumStyles, 9429);
	EXPECT_EQ(Names.Num(), 9429);
	EXPECT_TRUE(Lines.Last().StartsWith(TEXT("<code> int main() __NL__ {    const")));
}

TEST(VorelMarkdownStyle, HeadersScaleTheBaseSize)
{
	const float Sizes[] = {22.5f, 20.0f, 17.5f, 15.0f, 12.5f, 11.25f};
	for (int Level = 1; Level <= 6; ++Level)
	{
		const std::string Name = "Header" + std::to_string(Level);
		const FTextBlockStyle Header = Find(Name.c_str());
		EXPECT_TRUE(Header.Font == Font("Medium", Sizes[Level - 1])) << Level;
		EXPECT_TRUE(Header.ColorAndOpacity == FSlateColor::UseForeground()) << Level;
	}
	EXPECT_TRUE(Find("Header") == Find("Header1"));
	EXPECT_TRUE(Find("Emphasis").Font == Font("Italic", 10.0f));
	EXPECT_TRUE(Find("Strong").Font == Font("Bold", 10.0f));
	EXPECT_TRUE(Find("AutoLink") == Find("Paragraph.Link"));
	EXPECT_TRUE(Find("Link") == Find("AutoLink"));
	for (const char* Plain : {"OrderedList", "UnorderedList", "Table", "HorizontalRule", "ListItem", "Text"})
	{
		EXPECT_TRUE(Find(Plain) == Find("Paragraph")) << Plain;
	}
}

TEST(VorelMarkdownStyle, TheLastFontWinsWhileColorsAndBrushesStay)
{
	EXPECT_TRUE(Find("Paragraph.Strong.Emphasis").Font == Font("Italic", 10.0f));
	EXPECT_TRUE(Find("Paragraph.Emphasis.Strong").Font == Font("Bold", 10.0f));
	EXPECT_TRUE(Find("Header2.InlineCode").Font == Font("Mono", 20.0f));
	EXPECT_TRUE(Find("Header2.InlineCode").ColorAndOpacity == CodeColor);
	EXPECT_TRUE(Find("Image") == Find("InlineCode"));

	const FTextBlockStyle Quoted = Find("Blockquote.Blockquote.Blockquote.Blockquote.Header3");
	EXPECT_TRUE(Quoted.Font == Font("Italic", 17.5f));
	EXPECT_TRUE(Quoted.ColorAndOpacity == FSlateColor::UseSubduedForeground());
	EXPECT_TRUE(Quoted == Find("Blockquote.Header3"));

	const FTextBlockStyle Mixed = Find("OrderedList.Strikethrough.Link.Strong");
	EXPECT_TRUE(Mixed.Font == Font("Bold", 10.0f));
	EXPECT_TRUE(Mixed.StrikeBrush == *FAppStyle::Get().GetBrush("DefaultTextUnderline"));
	EXPECT_TRUE(Mixed.ColorAndOpacity == FAppStyle::Get().GetSlateColor("Colors.Primary"));
	EXPECT_TRUE(Mixed.UnderlineBrush.GetResourceName().ToString().EndsWith(TEXT("/Resources/White.png")));
	EXPECT_TRUE(Mixed.UnderlineBrush.ImageSize == FVector2D(8.0, 8.0));
	EXPECT_EQ(Mixed.UnderlineBrush.Tiling, ESlateBrushTileType::Both);
}

TEST(VorelMarkdownStyle, NamesThatDoNotExistGiveTheDefaultStyle)
{
	for (const char* Name : {"Blockquote.Blockquote.Table", "Paragraph.Strong.Strong", "Paragraph.Emphasis.Strong.Link.InlineCode",
			 "ListItem.Strong", "CodeBlock", "Blockquote.Blockquote.Blockquote.Blockquote.Blockquote.Paragraph"})
	{
		EXPECT_FALSE(Has(Name)) << Name;
	}
	EXPECT_TRUE(Has("Blockquote.Blockquote.Paragraph.Link"));
	EXPECT_TRUE(Has("Blockquote.Paragraph.UnorderedList.Image.Link.Strong"));

	FLogCapture Log;
	const FVorelMarkdownStyle& Style = FVorelMarkdownStyle::Get();
	EXPECT_TRUE(Style.GetStyle(TEXT("VorelMarkdown.Nothing")) == Find("Paragraph"));
	EXPECT_EQ(TakeLog(Log), "Warning: Style VorelMarkdown.Nothing not found\n");
	EXPECT_TRUE(Style.GetStyleOrDefault(TEXT("VorelMarkdown.Nothing")) == Find("Paragraph"));
	EXPECT_EQ(TakeLog(Log), "");
}

TEST(VorelMarkdownStyle, WordsIgnoreCaseAndUnknownOnesChangeNothing)
{
	FLogCapture Log;
	const FVorelMarkdownStyle& Style = FVorelMarkdownStyle::Get();
	const FTextBlockStyle Base = Find("Paragraph");
	EXPECT_TRUE(Style.CombinedStyle(Base, TEXT("sTRONG")).Font == Font("Bold", 10.0f));
	EXPECT_TRUE(Style.CombinedStyle(Base, TEXT("Blinking")) == Base);
	EXPECT_EQ(TakeLog(Log), "Warning: Style Blinking not found in CombinedStyle\n");
}
