// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Internationalization/Internationalization.h"
#include "Internationalization/TextLocalizationManager.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "TextTest"

class TextTest : public testing::Test
{
protected:
	~TextTest() override
	{
		FInternationalization::Get().SetCurrentCulture(TEXT("en"));
		FTextLocalizationManager::Get().Reset();
	}

	static void Translate(const TCHAR* Culture, const TCHAR* Key, const TCHAR* Source, const TCHAR* Translation)
	{
		FTextLocalizationManager::Get().AddTranslation(Culture, {TEXT("TextTest"), Key}, Source, Translation);
	}
};

TEST_F(TextTest, HasANamespaceAndAKeyByWhichItFollowsTheCulture)
{
	Translate(TEXT("de"), TEXT("Greeting"), TEXT("Hello"), TEXT("Hallo"));
	Translate(TEXT("de-AT"), TEXT("Greeting"), TEXT("Hello"), TEXT("Servus"));
	const FText Text = LOCTEXT("Greeting", "Hello");
	EXPECT_TEXT(FTextInspector::GetNamespace(Text).GetValue(), TEXT("TextTest"));
	EXPECT_TEXT(FTextInspector::GetKey(Text).GetValue(), TEXT("Greeting"));
	EXPECT_FALSE(FTextInspector::GetKey(INVTEXT("plain")).IsSet());
	EXPECT_TEXT(Text.ToString(), TEXT("Hello"));
	FInternationalization::Get().SetCurrentCulture(TEXT("de-AT"));
	EXPECT_TEXT(Text.ToString(), TEXT("Servus"));
	FInternationalization::Get().SetCurrentCulture(TEXT("de-CH"));
	EXPECT_TEXT(Text.ToString(), TEXT("Hallo"));
	FInternationalization::Get().SetCurrentCulture(TEXT("fr"));
	EXPECT_TEXT(Text.ToString(), TEXT("Hello"));
	EXPECT_TEXT(FTextInspector::GetSourceString(Text), TEXT("Hello"));

	// The source is shown where a translation is out of date, or of another key.
	FInternationalization::Get().SetCurrentCulture(TEXT("de"));
	EXPECT_TEXT(LOCTEXT("Greeting", "Hi").ToString(), TEXT("Hi"));
	EXPECT_TEXT(LOCTEXT("greeting", "Hello").ToString(), TEXT("Hello"));
}

TEST_F(TextTest, GroupsNumbersByCulture)
{
	const FText Number = FText::AsNumber(1234567);
	const FText Fraction = FText::AsNumber(-1234.5);
	EXPECT_TEXT(Number.ToString(), TEXT("1,234,567"));
	EXPECT_TEXT(Fraction.ToString(), TEXT("-1,234.5"));
	FInternationalization::Get().SetCurrentCulture(TEXT("de"));
	EXPECT_TEXT(Number.ToString(), TEXT("1.234.567"));
	EXPECT_TEXT(Fraction.ToString(), TEXT("-1.234,5"));
	FInternationalization::Get().SetCurrentCulture(TEXT("hi-IN"));
	EXPECT_TEXT(Number.ToString(), TEXT("12,34,567"));
}

TEST_F(TextTest, Formats)
{
	EXPECT_TEXT(FText::Format(INVTEXT("{1} {0} {1}"), INVTEXT("a"), INVTEXT("b")).ToString(), TEXT("b a b"));
	EXPECT_TEXT(FText::Format(INVTEXT("{Name} has {Count}"), FFormatNamedArguments{{TEXT("Count"), 1000}, {TEXT("Name"), INVTEXT("Ann")}})
					.ToString(),
		TEXT("Ann has 1,000"));

	// Places without an argument, and braces, are left alone.
	EXPECT_TEXT(FText::Format(INVTEXT("{0} {1} {x}"), INVTEXT("a")).ToString(), TEXT("a {1} {x}"));
	EXPECT_TEXT(FText::Format(INVTEXT("`{0`} `` `a {0"), INVTEXT("a")).ToString(), TEXT("{0} ` `a {0"));
	EXPECT_TEXT(FText::Format(INVTEXT("[{0}]"), INVTEXT("{0}")).ToString(), TEXT("[{0}]"));
	EXPECT_TEXT(FText::Format(INVTEXT("[{0}]"), FText::GetEmpty()).ToString(), TEXT("[]"));

	// A format follows the culture of its parts.
	Translate(TEXT("de"), TEXT("CreditsTemplate"), TEXT("Credits: {0}"), TEXT("{0} Punkte"));
	const FText Text = FText::Format(LOCTEXT("CreditsTemplate", "Credits: {0}"), FText::AsNumber(1000));
	EXPECT_TEXT(Text.ToString(), TEXT("Credits: 1,000"));
	FInternationalization::Get().SetCurrentCulture(TEXT("de"));
	EXPECT_TEXT(Text.ToString(), TEXT("1.000 Punkte"));
}

TEST_F(TextTest, TellsOfACultureThatChangedAndRefusesOneThatDoesNotExist)
{
	int32 NumChanges = 0;
	const FDelegateHandle Handle = FInternationalization::Get().OnCultureChanged().AddLambda([&NumChanges] { ++NumChanges; });
	EXPECT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("fr-CA")));
	EXPECT_EQ(NumChanges, 1);
	for (const TCHAR* Name : {TEXT(""), TEXT("qq"), TEXT("not a culture"), TEXT("\u00E9")})
	{
		EXPECT_FALSE(FInternationalization::Get().SetCurrentCulture(Name)) << FString(Name);
	}
	EXPECT_EQ(NumChanges, 1);
	EXPECT_TEXT(FInternationalization::Get().GetCurrentCultureName(), TEXT("fr-CA"));
	FInternationalization::Get().OnCultureChanged().Remove(Handle);
}

#undef LOCTEXT_NAMESPACE
