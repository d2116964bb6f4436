// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "PaintSupport.h"

#include <QSet>

static constexpr auto LeftToRight = TextBiDi::ETextDirection::LeftToRight;
static constexpr auto RightToLeft = TextBiDi::ETextDirection::RightToLeft;

static const TCHAR* const FaceWords[] = {TEXT("Regular"), TEXT("Bold"), TEXT("Italic"), TEXT("BoldItalic"), TEXT("Medium"), TEXT("Light"),
	TEXT("VeryLight"), TEXT("Black"), TEXT("BlackItalic"), TEXT("BoldCondensed"), TEXT("BoldCondensedItalic"), TEXT("Mono")};

static TSharedRef<const FQtShapedText> Shape(const TCHAR* Text, TextBiDi::ETextDirection Direction = LeftToRight, float Size = 10.0f,
	float Scale = 1.0f, ETextShapingMethod Method = ETextShapingMethod::Auto, const TCHAR* Face = TEXT("Regular"))
{
	return StaticCastSharedRef<const FQtShapedText>(
		FDesktopApplication::Get().GetTextShaper().Shape(Text, FontOf(Face, Size), Scale, Direction, Method));
}

static TSharedRef<const FQtShapedText> ShapeIn(const TCHAR* Face, const TCHAR* Text, ETextShapingMethod Method = ETextShapingMethod::Auto)
{
	return Shape(Text, LeftToRight, 10.0f, 1.0f, Method, Face);
}

static QList<quint32> FindGlyphs(const FQtShapedText& Shaped)
{
	QList<quint32> Glyphs;
	for (const FGlyphRun& Run : Shaped.Runs)
	{
		Glyphs.append(Run.Glyphs.glyphIndexes());
	}
	return Glyphs;
}

static int CountGlyphs(const FQtShapedText& Shaped)
{
	return static_cast<int>(FindGlyphs(Shaped).size());
}

static bool HasMissingGlyph(const FQtShapedText& Shaped)
{
	return FindGlyphs(Shaped).contains(0);
}

TEST(Faces, EachWordComesFromTheFontMadeForIt)
{
	QSet<QString> Fonts;
	for (const TCHAR* Word : FaceWords)
	{
		const QRawFont Font = ShapeIn(Word, TEXT("a"))->Runs[0].Glyphs.rawFont();
		Fonts.insert(Font.familyName() + QLatin1Char(' ') + Font.styleName());
	}
	EXPECT_EQ(Fonts, (QSet<QString>{"Roboto Regular", "Roboto Bold", "Roboto Italic", "Roboto Bold Italic", "Roboto Medium", "Roboto Light",
						 "Roboto Thin", "Roboto Black", "Roboto Black Italic", "Roboto Condensed Bold", "Roboto Condensed Bold Italic",
						 "JetBrains Mono Regular"}));
	EXPECT_EQ(Shape(TEXT("word"))->Width, ShapeIn(TEXT("NoSuchFace"), TEXT("word"))->Width);
}

TEST(Sizes, TenPointsAreThirteenAndAThirdUnits)
{
	EXPECT_NEAR(Shape(TEXT("a"))->Runs[0].Glyphs.rawFont().pixelSize(), 40.0 / 3.0, 1.0e-4);
	// A cell of the monospaced face is 0.6 em wide.
	EXPECT_NEAR(ShapeIn(TEXT("Mono"), TEXT("0123456789"))->Width, 80.0f, 0.02f);
}

TEST(Sizes, EverythingGrowsLinearly)
{
	ITextShaper& Shaper = FDesktopApplication::Get().GetTextShaper();
	const FSlateFontInfo Font = FontOf(TEXT("Regular"), 10.0f);
	const TArray<float> Small = Shape(TEXT("AVATAR office"))->CaretOffsets;
	for (const float Scale : {1.25f, 3.0f})
	{
		const TArray<float> Large = Shape(TEXT("AVATAR office"), LeftToRight, 10.0f, Scale)->CaretOffsets;
		for (int32 Index = 0; Index < Small.Num(); ++Index)
		{
			EXPECT_NEAR(Large[Index], Small[Index] * Scale, 0.001f);
		}
		EXPECT_NEAR(Shaper.GetMetrics(Font, Scale).LineHeight, Shaper.GetMetrics(Font, 1.0f).LineHeight * Scale, 0.001f);
	}
}

TEST(Carets, OneBeforeEachUnitAndOneBehindAllFromTheSideWhereTheTextBegins)
{
	const TCHAR LoneSurrogate[] = {0xD800, u'x', 0};
	for (const TCHAR* Text : {TEXT(""), TEXT("a"), TEXT("office "), TEXT("\u00e9\u0302x"), TEXT("a\U0001F600b"), TEXT("12"),
			 TEXT("\u0928\u092e\u0938\u094d\u0924\u0947"), TEXT("\u05e9\u05dc\U0001F600\u05d5\u05dd"), LoneSurrogate + 0,
			 TEXT("\u202e\u2066x"), TEXT("\x01\x7f"), TEXT("\ufe0f\u200d"), TEXT("\t\n")})
	{
		for (const auto Direction : {LeftToRight, RightToLeft})
		{
			const TSharedRef<const FQtShapedText> Shaped = Shape(Text, Direction);
			TArray<float> Offsets = Shaped->CaretOffsets;
			ASSERT_EQ(Offsets.Num(), FStringView(Text).Len() + 1);
			if (Direction == RightToLeft)
			{
				std::reverse(Offsets.begin(), Offsets.end());
			}
			EXPECT_EQ(Offsets[0], 0.0f);
			EXPECT_FLOAT_EQ(Offsets.Last(), Shaped->Width);
			EXPECT_TRUE(std::is_sorted(Offsets.begin(), Offsets.end())) << QString::fromUtf16(Text).toStdString();
		}
	}
}

TEST(Shaping, BracketsAreMirroredFromTheRight)
{
	const auto GlyphOf = [](const TCHAR* Text, TextBiDi::ETextDirection Direction)
	{
		return Shape(Text, Direction)->Runs[0].Glyphs.glyphIndexes()[0];
	};
	EXPECT_EQ(GlyphOf(TEXT("("), RightToLeft), GlyphOf(TEXT(")"), LeftToRight));
}

TEST(Shaping, KerningOnlyKernsAndJoinsNothing)
{
	constexpr auto Kerning = ETextShapingMethod::KerningOnly;
	constexpr auto Full = ETextShapingMethod::FullShaping;
	const TCHAR* const Regular = TEXT("Regular");
	EXPECT_LT(ShapeIn(Regular, TEXT("AV"), Kerning)->Width,
		ShapeIn(Regular, TEXT("A"), Kerning)->Width + ShapeIn(Regular, TEXT("V"), Kerning)->Width);
	EXPECT_EQ(CountGlyphs(*ShapeIn(Regular, TEXT("office"), Kerning)), 6);
	EXPECT_LT(CountGlyphs(*ShapeIn(Regular, TEXT("office"), Full)), 6);

	const auto ArrowBy = [](ETextShapingMethod Method)
	{
		return ShapeIn(TEXT("Mono"), TEXT("->"), Method)->Runs[0].Glyphs.glyphIndexes();
	};
	EXPECT_NE(ArrowBy(Kerning), ArrowBy(Full));
	EXPECT_EQ(ArrowBy(ETextShapingMethod::Auto), ArrowBy(Kerning));
}

TEST(Shaping, ArabicLettersJoin)
{
	const TCHAR* const Word = TEXT("\u0645\u0631\u062d\u0628\u0627");
	float Apart = 0.0f;
	for (const TCHAR* Letter : {TEXT("\u0645"), TEXT("\u0631"), TEXT("\u062d"), TEXT("\u0628"), TEXT("\u0627")})
	{
		Apart += Shape(Letter, RightToLeft)->Width;
	}
	const float Joined = Shape(Word, RightToLeft)->Width;
	EXPECT_LT(Joined, Apart * 0.9f);
	EXPECT_NEAR(Joined, Shape(Word, RightToLeft, 10.0f, 1.0f, ETextShapingMethod::KerningOnly)->Width, 0.02f);
}

TEST(Fallback, NoScriptShowsBoxes)
{
	// Han, Japanese, Korean, Arabic, Hebrew, Thai, Devanagari, Greek and Cyrillic, signs, emoji.
	for (const TCHAR* Text : {TEXT("\u4f60\u597d"), TEXT("\u65e5\u672c\u8a9e\u304b\u306a"), TEXT("\ud55c\uad6d\uc5b4"),
			 TEXT("\u0645\u0631\u062d\u0628\u0627"), TEXT("\u05e9\u05dc\u05d5\u05dd"), TEXT("\u0e2a\u0e27\u0e31\u0e2a\u0e14\u0e35"),
			 TEXT("\u0928\u092e\u0938\u094d\u0924\u0947"), TEXT("\u03b1\u03b2\u0436\u0444"), TEXT("\u2192\u2713\u2022\u2605\u2211\u221e"),
			 TEXT("\U0001F600\U0001F680\U0001F1E9\U0001F1EA")})
	{
		for (const TCHAR* Face : FaceWords)
		{
			EXPECT_FALSE(HasMissingGlyph(*ShapeIn(Face, Text)))
				<< QString::fromUtf16(Text).toStdString() << " in " << QString::fromUtf16(Face).toStdString();
		}
	}
	EXPECT_TRUE(HasMissingGlyph(*Shape(TEXT("\U0010FFF0")))) << "the test itself would see a box";
}

TEST(Fallback, PresentationDecidesBetweenTextAndEmoji)
{
	const std::pair<const TCHAR*, bool> Cases[] = {{TEXT("\U0001F600"), true}, {TEXT("\u2764\ufe0f"), true}, {TEXT("1\ufe0f\u20e3"), true},
		{TEXT("\u00a9\ufe0f"), true}, {TEXT("\u2764"), false}, {TEXT("\U0001F600\ufe0e"), false}, {TEXT("1"), false},
		{TEXT("\u00a9"), false}};
	for (const auto& [Text, bColored] : Cases)
	{
		const TSharedRef<const FQtShapedText> Shaped = Shape(Text);
		for (const FGlyphRun& Run : Shaped->Runs)
		{
			EXPECT_EQ(Run.bColored, bColored) << QString::fromUtf16(Text).toStdString();
		}
	}
}

TEST(Fallback, AnEmojiSequenceIsOneGlyphAndOneStepOfTheCaret)
{
	const float One = Shape(TEXT("\U0001F600"))->Width;
	for (const TCHAR* Sequence : {TEXT("\U0001F469\u200d\U0001F469\u200d\U0001F467"),
			 TEXT("\U0001F468\u200d\U0001F469\u200d\U0001F467\u200d\U0001F466"), TEXT("\U0001F469\u200d\u2764\ufe0f\u200d\U0001F468"),
			 TEXT("\U0001F3F3\ufe0f\u200d\U0001F308"), TEXT("\U0001F1E9\U0001F1EA"), TEXT("\U0001F44D\U0001F3FD"), TEXT("1\ufe0f\u20e3")})
	{
		// Flags and keycaps are never read from the right.
		const bool bNeutral = *Sequence != TEXT('1') && Sequence[1] != 0xDDE9;
		for (const auto Direction : {LeftToRight, bNeutral ? RightToLeft : LeftToRight})
		{
			const TSharedRef<const FQtShapedText> Shaped = Shape(Sequence, Direction, 10.0f, 1.0f, ETextShapingMethod::Auto, TEXT("Mono"));
			EXPECT_EQ(CountGlyphs(*Shaped), 1) << QString::fromUtf16(Sequence).toStdString();
			EXPECT_FLOAT_EQ(Shaped->Width, One);
			for (const float Offset : Shaped->CaretOffsets)
			{
				EXPECT_TRUE(Offset == 0.0f || Offset == Shaped->Width) << Offset;
			}
		}
	}
}

TEST(Fallback, HanIsAsBoldAsTheFaceThatLacksIt)
{
	const auto StyleOf = [](const TCHAR* Face)
	{
		return ShapeIn(Face, TEXT("\u65e5"))->Runs[0].Glyphs.rawFont().styleName();
	};
	EXPECT_EQ(StyleOf(TEXT("Regular")), "Regular");
	EXPECT_EQ(StyleOf(TEXT("Italic")), "Regular");
	EXPECT_EQ(StyleOf(TEXT("Mono")), "Regular");
	EXPECT_EQ(StyleOf(TEXT("Bold")), "Bold");
}
