// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/CodeSamples.h"
#include "Framework/Text/SlateTextLayout.h"
#include "Styling/SlateTypes.h"
#include "Support/UserDriver.h"
#include "Syntax/CodeBlockMarshaller.h"
#include "Syntax/CppSyntaxRules.h"
#include "Widgets/SNullWidget.h"
#include <gtest/gtest.h>

namespace
{

FString MakeRubbish(int32 Length)
{
	const TCHAR Special[] = {0x01, TEXT('\r'), TEXT('\n'), TEXT('\t'), TEXT(' '), 0xD83D, 0xDE00, 0x05D0, 0x0645, 0x202E, 0x0301, 0x200D,
		0x2028, 0xFFFF, TEXT('/'), TEXT('*'), TEXT('"'), TEXT('a')};
	FString Rubbish;
	uint32 Random = 1;
	for (int32 Index = 0; Index < Length; ++Index)
	{
		Random = Random * 1664525 + 1013904223;
		Rubbish.AppendChar((Random >> 16) % 4 ? Special[(Random >> 18) % std::size(Special)] : static_cast<TCHAR>((Random >> 16) | 1));
	}
	return Rubbish;
}

TArray<FCodeSample> MakeHostileSamples()
{
	const FString Codes[] = {FString::ChrN(100'000, TEXT('x')), FString::ChrN(100'000, TEXT('"')), FString::ChrN(100'000, TEXT('\t')),
		FString::ChrN(20'000, TEXT('\n')), MakeRubbish(100'000), TEXT("/* never closed \n\n \"'"),
		TEXT("\u05d0\u05d1 for \u0645\u0631\u062d\u0628\u0627\t\u05d0 // e\u0301 \U0001F468\u200D\U0001F469")};
	TArray<FCodeSample> Samples;
	for (const FString& Code : Codes)
	{
		Samples.Add({Code.Left(40), Code});
	}
	return Samples;
}

} // namespace

TEST(CodeSamples, EveryFileIsCutAndColoredWithoutLosingAnything)
{
	EXPECT_EQ(CppOperatorRules.Num(), 53);
	EXPECT_EQ(CppKeywordRules.Num(), 86);
	EXPECT_EQ(CppPreProcessorRules.Num(), 9);
	FUserDriver User(SNullWidget::NullWidget, FVector2D(100.0, 100.0), 1.0f, EDriverFonts::Even);
	const TSharedRef<FCodeBlockMarshaller> Marshaller = FCodeBlockMarshaller::Create();
	TArray<FCodeSample> Samples = ReadCodeSamples(VOREL_CODE_FOLDERS);
	EXPECT_GE(Samples.Num(), 500);
	Samples.Append(MakeHostileSamples());
	for (const FCodeSample& Sample : Samples)
	{
		const TSharedRef<FSlateTextLayout> Layout = FSlateTextLayout::Create(*SNullWidget::NullWidget, FTextBlockStyle::GetDefault());
		Marshaller->SetText(Sample.Text, *Layout);
		FString Shown;
		Marshaller->GetText(Shown, *Layout);
		ASSERT_TRUE(Shown.Equals(Sample.Text.Replace(TEXT("\r\n"), TEXT("\n")))) << Sample.Path;
	}
}
