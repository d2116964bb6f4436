// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Fonts/ShapedTextCache.h"
#include "Support/EvenTextShaper.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

namespace
{
class ShapedTextCache : public testing::Test
{
protected:
	FEvenTextShaper Shaper;
	const FSlateFontInfo Font{"Regular", 10.0f};
};
} // namespace

TEST_F(ShapedTextCache, ShapesTheSameOnceAndWhateverDiffersAgain)
{
	FShapedTextCache Cache(Shaper);
	const auto First = Cache.Shape(TEXT("word"), Font, 1.0f);
	EXPECT_EQ(Cache.Shape(TEXT("word"), Font, 1.0f), First);
	EXPECT_EQ(Cache.GetNumShaped(), 1);
	Cache.Shape(TEXT("Word"), Font, 1.0f);
	Cache.Shape(TEXT("word"), Font, 2.0f);
	Cache.Shape(TEXT("word"), FSlateFontInfo("Bold", 10.0f), 1.0f);
	Cache.Shape(TEXT("word"), FSlateFontInfo("Regular", 11.0f), 1.0f);
	Cache.Shape(TEXT("word"), Font, 1.0f, TextBiDi::ETextDirection::RightToLeft);
	Cache.Shape(TEXT("word"), Font, 1.0f, TextBiDi::ETextDirection::LeftToRight, ETextShapingMethod::KerningOnly);
	EXPECT_EQ(Cache.GetNumShaped(), 7);
	Cache.Shape(FStringView(TEXT("a word"), 6).RightChop(2), Font, 1.0f);
	EXPECT_EQ(Cache.GetNumShaped(), 7) << "by what it says, not by where it lies";
}

TEST_F(ShapedTextCache, DropsWhatWasNotAskedForForLong)
{
	FShapedTextCache Cache(Shaper, 10);
	Cache.Shape(TEXT("aaaa"), Font, 1.0f);
	Cache.Shape(TEXT("bbbb"), Font, 1.0f);
	Cache.Shape(TEXT("cccc"), Font, 1.0f);
	Cache.Shape(TEXT("aaaa"), Font, 1.0f);
	EXPECT_EQ(Cache.GetNumShaped(), 3) << "still known from the generation before";
	Cache.Shape(TEXT("dddd"), Font, 1.0f);
	Cache.Shape(TEXT("aaaa"), Font, 1.0f);
	EXPECT_EQ(Cache.GetNumShaped(), 4);
	Cache.Shape(TEXT("bbbb"), Font, 1.0f);
	EXPECT_EQ(Cache.GetNumShaped(), 5) << "gone";
}
