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
	for (int Pixel = 0; Pixel < Picture.width() * Picture.height(); ++Pixel)
	{
		const QRgb Color = Picture.pixel(Pixel % Picture.width(), Pixel / Picture.width());
		if (QColor(Color).saturation() > 128 && qGray(Color) > 64)
		{
			return true;
		}
	}
	return false;
}

static QImage Draw(const TCHAR* Text, const FLinearColor& Tint, double Top = 2.0, float Scale = 1.0f)
{
	return FCanvas(200, 30, Scale).Text(FVector2D(2.0, Top), Text, FontOf(TEXT("Black"), 12.0f), Tint).Paint();
}

TEST(TextPixels, TwiceTheScaleHasMoreDetailThanTwiceThePicture)
{
	const TCHAR* const Text = TEXT("The quick brown fox");
	const QImage Doubled = Draw(Text, FLinearColor::White).scaled(400, 60, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	EXPECT_GT(MeasureDetail(Draw(Text, FLinearColor::White, 2.0, 2.0f)), 1.5 * MeasureDetail(Doubled));
}

TEST(TextPixels, TextTakesItsTintAndEmojiTheAlphaAlone)
{
	EXPECT_FALSE(HasColor(Draw(TEXT("MMMM"), FLinearColor::White)));
	EXPECT_TRUE(HasColor(Draw(TEXT("MMMM"), FLinearColor::Red)));
	const TCHAR* const Emoji = TEXT("\U0001F600");
	const QImage White = Draw(Emoji, FLinearColor::White);
	EXPECT_TRUE(HasColor(White));
	EXPECT_EQ(White, Draw(Emoji, FLinearColor(0.0f, 0.0f, 1.0f)));
	EXPECT_NE(White, Draw(Emoji, FLinearColor(1.0f, 1.0f, 1.0f, 0.5f)));
	EXPECT_EQ(Draw(TEXT(""), FLinearColor::White), Draw(Emoji, FLinearColor::Transparent));
}
