// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "VorelLog.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/StyleSheets/VorelMarkdownStyle.h"
#include <gtest/gtest.h>

namespace
{

FString FullName(const char* Name)
{
	return FString::Printf(TEXT("VorelMarkdown.%hs"), Name);
}

FTextBlockStyle Find(const char* Name)
{
	EXPECT_TRUE(FVorelMarkdownStyle::Get().HasStyle(FullName(Name))) << Name;
	return FVorelMarkdownStyle::Get().GetStyle(FullName(Name));
}

} // namespace

TEST(VorelMarkdownStyle, HoldsEveryCombinationOnceAndPublishesIt)
{
	FVorelMarkdownStyle::Shutdown();
	FLogCapture Log;
	FVorelMarkdownStyle::Initialize();
	EXPECT_EQ(TakeLog(Log), "Warning: BlockStyle CodeBlock not found in Styles\n");

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
	for (const char* Name : {"Blockquote.Blockquote.Table", "Paragraph.Strong.Strong", "Paragraph.Emphasis.Strong.Link.InlineCode",
			 "ListItem.Strong", "CodeBlock", "Blockquote.Blockquote.Blockquote.Blockquote.Blockquote.Paragraph"})
	{
		EXPECT_FALSE(FVorelMarkdownStyle::Get().HasStyle(FullName(Name))) << Name;
	}
}

TEST(VorelMarkdownStyle, TheLastFontWinsAndHeadersScaleTheBaseSize)
{
	const FLinearColor CodeColor(1.0f, 0.7f, 0.4f);
	const FSlateColor LinkColor = FAppStyle::Get().GetSlateColor("Colors.Primary");
	const struct
	{
		const char* Name;
		const char* FaceWord;
		float Size;
		FSlateColor Color;
	} Rows[] = {{"Header1", "Medium", 22.5f, FSlateColor::UseForeground()}, {"Header2", "Medium", 20.0f, FSlateColor::UseForeground()},
		{"Header3", "Medium", 17.5f, FSlateColor::UseForeground()}, {"Header4", "Medium", 15.0f, FSlateColor::UseForeground()},
		{"Header5", "Medium", 12.5f, FSlateColor::UseForeground()}, {"Header6", "Medium", 11.25f, FSlateColor::UseForeground()},
		{"Paragraph.Strong.Emphasis", "Italic", 10.0f, Find("Paragraph").ColorAndOpacity},
		{"Paragraph.Emphasis.Strong", "Bold", 10.0f, Find("Paragraph").ColorAndOpacity}, {"Header2.InlineCode", "Mono", 20.0f, CodeColor},
		{"OrderedList.Strikethrough.Link.Strong", "Bold", 10.0f, LinkColor},
		{"Blockquote.Blockquote.Blockquote.Blockquote.Header3", "Italic", 17.5f, FSlateColor::UseSubduedForeground()}};
	for (const auto& Row : Rows)
	{
		EXPECT_TRUE(Find(Row.Name).Font == FCoreStyle::GetDefaultFontStyle(Row.FaceWord, Row.Size)) << Row.Name;
		EXPECT_TRUE(Find(Row.Name).ColorAndOpacity == Row.Color) << Row.Name;
	}
	const FTextBlockStyle Mixed = Find("OrderedList.Strikethrough.Link.Strong");
	EXPECT_TRUE(Mixed.StrikeBrush == *FAppStyle::Get().GetBrush("DefaultTextUnderline"));
	EXPECT_TRUE(Mixed.UnderlineBrush.GetResourceName().ToString().EndsWith(TEXT("/Resources/White.png")));
	EXPECT_TRUE(Mixed.UnderlineBrush.ImageSize == FVector2D(8.0, 8.0));
	EXPECT_EQ(Mixed.UnderlineBrush.Tiling, ESlateBrushTileType::Both);

	const std::pair<const char*, const char*> Equals[] = {{"Header", "Header1"}, {"Strong", "Paragraph.Strong"},
		{"AutoLink", "Paragraph.Link"}, {"Link", "AutoLink"}, {"Image", "InlineCode"}, {"OrderedList", "Paragraph"},
		{"UnorderedList", "Paragraph"}, {"Table", "Paragraph"}, {"HorizontalRule", "Paragraph"}, {"ListItem", "Paragraph"},
		{"Text", "Paragraph"}, {"Blockquote.Blockquote.Header3", "Blockquote.Header3"}};
	for (const auto& [Name, Same] : Equals)
	{
		EXPECT_TRUE(Find(Name) == Find(Same)) << Name;
	}
}

TEST(VorelMarkdownStyle, UnknownNamesAndWordsAreReportedAndWordsIgnoreCase)
{
	FLogCapture Log;
	const FVorelMarkdownStyle& Style = FVorelMarkdownStyle::Get();
	const FTextBlockStyle Base = Find("Paragraph");
	EXPECT_TRUE(Style.GetStyle(TEXT("VorelMarkdown.Nothing")) == Base);
	EXPECT_EQ(TakeLog(Log), "Warning: Style VorelMarkdown.Nothing not found\n");
	EXPECT_TRUE(Style.GetStyleOrDefault(TEXT("VorelMarkdown.Nothing")) == Base);
	EXPECT_EQ(TakeLog(Log), "");
	EXPECT_TRUE(Style.CombinedStyle(Base, TEXT("sTRONG")) == Find("Paragraph.Strong"));
	EXPECT_TRUE(Style.CombinedStyle(Base, TEXT("Blinking")) == Base);
	EXPECT_EQ(TakeLog(Log), "Warning: Style Blinking not found in CombinedStyle\n");
}
