// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "PaintSupport.h"

// The sum of all differences between neighbouring pixels of a row: sharp edges add more than soft ones.
static double MeasureDetail(const QImage& Picture)
{
	double Detail = 0.0;
	for (int Row = 0; Row < Picture.height(); ++Row)
	{
		for (int Column = 1; Column < Picture.width(); ++Column)
		{
			const double Difference = qGray(Picture.pixel(Column, Row)) - qGray(Picture.pixel(Column - 1, Row));
			Detail += Difference * Difference;
		}
	}
	return Detail;
}

static bool HasColor(const QImage& Picture)
{
	for (int Row = 0; Row < Picture.height(); ++Row)
	{
		for (int Column = 0; Column < Picture.width(); ++Column)
		{
			if (QColor(Picture.pixel(Column, Row)).saturation() > 128 && qGray(Picture.pixel(Column, Row)) > 64)
			{
				return true;
			}
		}
	}
	return false;
}

TEST(TextPixels, TwiceTheScaleHasMoreDetailThanTwiceThePicture)
{
	const auto Draw = [](float Scale)
	{
		return FCanvas(200, 24, Scale).Text(FVector2D(2.0, 2.0), TEXT("The quick brown fox"), FontOf(TEXT("Regular"), 10.0f)).Paint();
	};
	const QImage Doubled = Draw(1.0f).scaled(400, 48, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	const QImage Drawn = Draw(2.0f);
	ASSERT_EQ(Drawn.size(), Doubled.size());
	EXPECT_GT(MeasureDetail(Drawn), 1.5 * MeasureDetail(Doubled));
}

TEST(TextPixels, TextTakesItsTint)
{
	const FLinearColor Red(1.0f, 0.0f, 0.0f);
	EXPECT_FALSE(HasColor(FCanvas(60, 24).Text(FVector2D(2.0, 2.0), TEXT("MMMM"), FontOf(TEXT("Black"), 12.0f)).Paint()));
	EXPECT_TRUE(HasColor(FCanvas(60, 24).Text(FVector2D(2.0, 2.0), TEXT("MMMM"), FontOf(TEXT("Black"), 12.0f), Red).Paint()));
}

TEST(TextPixels, EmojiKeepTheirColorsAndTakeTheAlpha)
{
	const auto Draw = [](const FLinearColor& Tint)
	{
		return FCanvas(40, 40).Text(FVector2D(2.0, 2.0), TEXT("\U0001F600"), FontOf(TEXT("Regular"), 20.0f), Tint).Paint();
	};
	const QImage White = Draw(FLinearColor::White);
	EXPECT_TRUE(HasColor(White));
	EXPECT_EQ(White, Draw(FLinearColor(0.0f, 0.0f, 1.0f)));
	EXPECT_NE(White, Draw(FLinearColor(1.0f, 1.0f, 1.0f, 0.5f)));
	EXPECT_EQ(FCanvas(40, 40).Paint(), Draw(FLinearColor::Transparent));
}

TEST(TextPixels, TheBaselineLiesOnAWholePixel)
{
	// A letter with a flat foot ends in one row, whatever fraction its line begins at.
	for (const double Top : {2.0, 2.3, 2.5, 2.8})
	{
		const QImage Picture = FCanvas(30, 30).Text(FVector2D(2.0, Top), TEXT("HHH"), FontOf(TEXT("Black"), 12.0f)).Paint();
		const int Ground = qGray(Picture.pixel(0, 0));
		int Faint = 0;
		for (int Row = 0; Row < Picture.height(); ++Row)
		{
			int Brightest = 0;
			for (int Column = 0; Column < Picture.width(); ++Column)
			{
				Brightest = qMax(Brightest, qGray(Picture.pixel(Column, Row)));
			}
			Faint += Brightest > Ground + 10 && Brightest < 200 ? 1 : 0;
		}
		EXPECT_LE(Faint, 1) << Top;
	}
}
