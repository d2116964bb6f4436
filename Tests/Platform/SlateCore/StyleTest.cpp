// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Brushes/SlateColorBrush.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateTypes.h"
#include "Styling/WidgetStyle.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

namespace
{
const FLinearColor Orange(1.0f, 0.5f, 0.0f);

class Style : public testing::Test
{
protected:
	FSlateStyleSet Set{FName(TEXT("TestStyle"))};
};
} // namespace

TEST_F(Style, EachKindOfColorIsReadAsEither)
{
	Set.Set("Linear", Orange);
	Set.Set("Slate", FSlateColor(Orange));
	Set.Set("Inherited", FSlateColor::UseForeground());
	EXPECT_EQ(Set.GetSlateColor("Linear"), FSlateColor(Orange));
	EXPECT_EQ(Set.GetColor("Slate"), Orange);
	EXPECT_EQ(Set.GetColor("Inherited", nullptr, FLinearColor::Red), FLinearColor::Red) << "it is no color by itself";
	Set.Set("Copy", Set.GetColor("Linear"));
	EXPECT_EQ(Set.GetColor("Copy"), Orange) << "a value read from the set itself";
}

TEST_F(Style, AMissingNameOrAnotherTypeYieldsTheDefaultOfItsKind)
{
	EXPECT_EQ(Set.GetColor("None", nullptr, Orange), Orange);
	EXPECT_EQ(Set.GetBrush("None")->DrawAs, ESlateBrushDrawType::NoDrawType);
	EXPECT_EQ(Set.GetOptionalBrush("None", nullptr, nullptr), nullptr);
	Set.Set("Text", FTextBlockStyle().SetFont(FSlateFontInfo("Bold", 12.0f)));
	EXPECT_EQ(Set.GetWidgetStyle<FTextBlockStyle>("Text").Font.Size, 12.0f);
	EXPECT_FALSE(Set.HasWidgetStyle<FButtonStyle>("Text"));
	EXPECT_EQ(&Set.GetWidgetStyle<FButtonStyle>("Text"), &FButtonStyle::GetDefault());
}

TEST_F(Style, WhatWasHandedOutOutlivesBeingReplaced)
{
	Set.Set("Brush", new FSlateColorBrush(Orange));
	const FSlateBrush* Brush = Set.GetBrush("Brush");
	Set.Set("Brush", new FSlateColorBrush(FLinearColor::Red));
	EXPECT_EQ(Brush->TintColor, FSlateColor(Orange));
	EXPECT_EQ(Set.GetBrush("Brush")->TintColor, FSlateColor(FLinearColor::Red));
}

TEST_F(Style, TheRegistryBearsRepetitionAndNamesBrushes)
{
	Set.Set("Icon.Send", new FSlateColorBrush(Orange));
	const FSlateBrush* Brush = Set.GetBrush("Icon.Send");
	EXPECT_EQ(FSlateStyleRegistry::FindBrushName(Brush), FName()) << "not registered";
	FSlateStyleRegistry::RegisterSlateStyle(Set);
	FSlateStyleRegistry::RegisterSlateStyle(Set);
	EXPECT_EQ(FSlateStyleRegistry::FindBrushName(Brush), FName("Icon.Send"));
	{
		const FSlateStyleSet Other("TestStyle");
		FSlateStyleRegistry::RegisterSlateStyle(Other);
		FSlateStyleRegistry::UnRegisterSlateStyle(Other);
	}
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("teststyle"), &Set) << "another set of that name changes nothing";
	FSlateStyleRegistry::UnRegisterSlateStyle(Set);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("TestStyle"), nullptr);
	EXPECT_EQ(FSlateStyleRegistry::FindBrushName(Brush), FName());
}

TEST(SlateColor, IsTakenFromItsSurroundingsOrGiven)
{
	FWidgetStyle Around;
	Around.SetForegroundColor(Orange);
	EXPECT_EQ(FSlateColor(FLinearColor::Red).GetColor(Around), FLinearColor::Red);
	EXPECT_EQ(FSlateColor::UseForeground().GetColor(Around), Orange);
	EXPECT_EQ(FSlateColor::UseStyle().GetColor(Around), Orange);
	EXPECT_LT(FSlateColor::UseSubduedForeground().GetColor(Around).A, Orange.A);
	Around.SetForegroundColor(FSlateColor::UseForeground());
	EXPECT_EQ(Around.GetForegroundColor(), Orange) << "inherited further";
	Around.BlendColorAndOpacityTint(FLinearColor(1.0f, 1.0f, 1.0f, 0.5f)).BlendColorAndOpacityTint(FLinearColor(1.0f, 1.0f, 1.0f, 0.5f));
	EXPECT_EQ(Around.GetColorAndOpacityTint().A, 0.25f);
}
