// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "PaintSupport.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"

#include <QTemporaryDir>

namespace
{
/** Pictures that live as long as the test. */
class BrushPixels : public testing::Test
{
protected:
	FString SavePicture(const char* Name, const QImage& Picture)
	{
		const QString Path = Folder.filePath(QLatin1String(Name));
		EXPECT_TRUE(Picture.save(Path));
		return FString(UTF8_TO_TCHAR(Path.toUtf8().constData()));
	}

	/** Nine fields of three by three pixels, all different. */
	static QImage MakeNineFields()
	{
		QImage Picture(9, 9, QImage::Format_ARGB32);
		for (int Row = 0; Row < 9; ++Row)
		{
			for (int Column = 0; Column < 9; ++Column)
			{
				Picture.setPixelColor(Column, Row, FieldColor(Column / 3, Row / 3));
			}
		}
		return Picture;
	}

	static QColor FieldColor(int Column, int Row) { return QColor(60 + 80 * Column, 60 + 80 * Row, 200); }

	static QColor Ground() { return FCanvas(1, 1).Paint().pixelColor(0, 0); }

	QTemporaryDir Folder;
};

const FVector2D Origin(0.0, 0.0);
} // namespace

TEST_F(BrushPixels, LinearColorsBecomeScreenColors)
{
	const auto ColorOf = [](const FLinearColor& Tint)
	{
		return FCanvas(4, 4)
			.Box(Origin, FVector2D(4.0, 4.0), FSlateColorBrush(FLinearColor::White), ESlateDrawEffect::None, Tint)
			.Paint()
			.pixelColor(2, 2);
	};
	EXPECT_EQ(ColorOf(FLinearColor(0.5f, 0.0f, 1.0f)), QColor(188, 0, 255));
	EXPECT_EQ(ColorOf(FLinearColor(0.2140411f, 0.0021f, 2.0f)), QColor(127, 7, 255));
	EXPECT_EQ(ColorOf(FLinearColor::Transparent), Ground());
}

TEST_F(BrushPixels, DisabledIsFainter)
{
	const auto Draw = [](ESlateDrawEffect Effect)
	{
		return FCanvas(4, 4).Box(Origin, FVector2D(4.0, 4.0), FSlateColorBrush(FLinearColor::White), Effect).Paint().pixelColor(2, 2);
	};
	EXPECT_LT(Draw(ESlateDrawEffect::DisabledEffect).lightness(), Draw(ESlateDrawEffect::None).lightness() / 2 + 30);
	EXPECT_GT(Draw(ESlateDrawEffect::DisabledEffect).lightness(), Ground().lightness());
}

TEST_F(BrushPixels, EdgesLieOnWholePixels)
{
	const QImage Picture = FCanvas(8, 8, 1.5f).Box(FVector2D(1.1, 1.1), FVector2D(3.0, 3.0), FSlateColorBrush(FLinearColor::White)).Paint();
	for (int Column = 0; Column < Picture.width(); ++Column)
	{
		const bool bInside = Column >= 2 && Column < 6;
		EXPECT_EQ(Picture.pixelColor(Column, 4), bInside ? QColor(Qt::white) : Ground()) << Column;
	}
}

TEST_F(BrushPixels, CornersAreRoundAtEveryScale)
{
	for (const float Scale : {1.0f, 2.0f})
	{
		const FSlateRoundedBoxBrush Brush(FLinearColor::White, 8.0f);
		const QImage Picture = FCanvas(40, 20, Scale).Box(Origin, FVector2D(40.0, 20.0), Brush).Paint();
		const int Radius = qRound(8 * Scale);
		EXPECT_EQ(Picture.pixelColor(0, 0), Ground());
		EXPECT_EQ(Picture.pixelColor(Radius / 8, Radius / 8), Ground());
		EXPECT_EQ(Picture.pixelColor(Radius / 2, Radius / 2), QColor(Qt::white));
		EXPECT_EQ(Picture.pixelColor(Radius, 0), QColor(Qt::white));
		EXPECT_EQ(Picture.pixelColor(0, Radius), QColor(Qt::white));
		EXPECT_EQ(Picture.pixelColor(Picture.width() - 1, Picture.height() - 1), Ground());
		EXPECT_EQ(Picture.pixelColor(Picture.width() / 2, Picture.height() - 1), QColor(Qt::white));
	}
	const QImage Circle = FCanvas(20, 20).Box(Origin, FVector2D(20.0, 20.0), FSlateRoundedBoxBrush(FLinearColor::White, 100.0f)).Paint();
	EXPECT_EQ(Circle.pixelColor(1, 1), Ground());
	EXPECT_GT(Circle.pixelColor(10, 0).lightness(), 200);
}

TEST_F(BrushPixels, AnOutlineLiesWithinTheBox)
{
	const FSlateRoundedBoxBrush Brush(FLinearColor::White, 4.0f, FLinearColor::Red, 2.0f);
	const QImage Picture = FCanvas(30, 30).Box(FVector2D(5.0, 5.0), FVector2D(20.0, 20.0), Brush).Paint();
	EXPECT_EQ(Picture.pixelColor(15, 4), Ground());
	EXPECT_EQ(Picture.pixelColor(15, 5), QColor(Qt::red));
	EXPECT_EQ(Picture.pixelColor(15, 6), QColor(Qt::red));
	EXPECT_EQ(Picture.pixelColor(15, 8), QColor(Qt::white));
}

TEST_F(BrushPixels, ABoxStretchesAllButItsCornersAndABorderHasNoMiddle)
{
	const FString Path = SavePicture("fields.png", MakeNineFields());
	const QImage Picture = FCanvas(30, 20).Box(Origin, FVector2D(30.0, 20.0), FSlateBoxBrush(Path, FMargin(1.0f / 3.0f))).Paint();
	EXPECT_EQ(Picture.pixelColor(1, 1), FieldColor(0, 0));
	EXPECT_EQ(Picture.pixelColor(28, 1), FieldColor(2, 0));
	EXPECT_EQ(Picture.pixelColor(1, 18), FieldColor(0, 2));
	EXPECT_EQ(Picture.pixelColor(28, 18), FieldColor(2, 2));
	EXPECT_EQ(Picture.pixelColor(15, 1), FieldColor(1, 0));
	EXPECT_EQ(Picture.pixelColor(1, 10), FieldColor(0, 1));
	EXPECT_EQ(Picture.pixelColor(15, 10), FieldColor(1, 1));

	const QImage Border = FCanvas(30, 20).Box(Origin, FVector2D(30.0, 20.0), FSlateBorderBrush(Path, FMargin(1.0f / 3.0f))).Paint();
	EXPECT_EQ(Border.pixelColor(15, 1), FieldColor(1, 0));
	EXPECT_EQ(Border.pixelColor(15, 10), Ground());
}

TEST_F(BrushPixels, AnUnderlineIsOneLineAtTheFootOfItsBox)
{
	const FSlateBorderBrush Brush(FString(TEXT("Old/HyperlinkUnderline.png")), FMargin(0.0f, 0.0f, 0.0f, 0.1875f));
	const QImage Picture =
		FCanvas(40, 20).Box(Origin, FVector2D(40.0, 20.0), Brush, ESlateDrawEffect::None, FLinearColor(1.0f, 0.0f, 0.0f)).Paint();
	int Lines = 0;
	for (int Row = 0; Row < 20; ++Row)
	{
		if (Picture.pixelColor(20, Row) != Ground())
		{
			++Lines;
			EXPECT_GE(Row, 17);
			EXPECT_GT(Picture.pixelColor(0, Row).red(), 250);
			EXPECT_GT(Picture.pixelColor(39, Row).red(), 250);
		}
	}
	EXPECT_EQ(Lines, 1);
}

TEST_F(BrushPixels, ImagesAreTintedInLinearLight)
{
	QImage Gray(4, 4, QImage::Format_ARGB32);
	Gray.fill(QColor(188, 188, 188));
	const FSlateImageBrush Brush(SavePicture("gray.png", Gray), FVector2D(4.0, 4.0));
	const auto ColorOf = [&](const FLinearColor& Tint)
	{
		return FCanvas(4, 4).Box(Origin, FVector2D(4.0, 4.0), Brush, ESlateDrawEffect::None, Tint).Paint().pixelColor(2, 2);
	};
	EXPECT_EQ(ColorOf(FLinearColor::White), QColor(188, 188, 188));
	EXPECT_EQ(ColorOf(FLinearColor(1.0f, 0.0f, 0.5f)), QColor(188, 0, 137));
}

TEST_F(BrushPixels, TilesKeepTheirSize)
{
	QImage Checks(2, 2, QImage::Format_ARGB32);
	Checks.fill(Qt::black);
	Checks.setPixelColor(0, 0, Qt::white);
	Checks.setPixelColor(1, 1, Qt::white);
	const FSlateImageBrush Brush(SavePicture("checks.png", Checks), FVector2D(2.0, 2.0), FLinearColor::White, ESlateBrushTileType::Both);
	const QImage Picture = FCanvas(12, 12).Box(FVector2D(1.0, 1.0), FVector2D(10.0, 10.0), Brush).Paint();
	for (int Pixel = 1; Pixel < 11; ++Pixel)
	{
		EXPECT_EQ(Picture.pixelColor(Pixel, 1), Pixel % 2 == 1 ? QColor(Qt::white) : QColor(Qt::black));
		EXPECT_EQ(Picture.pixelColor(Pixel, 2), Pixel % 2 == 1 ? QColor(Qt::black) : QColor(Qt::white));
	}
}

TEST_F(BrushPixels, DrawingsAreSharpAtEverySize)
{
	const FString Path = SavePicture("unused.png", QImage(1, 1, QImage::Format_ARGB32)).Replace(TEXT("unused.png"), TEXT("half.svg"));
	QFile File(QString::fromUtf16(*Path));
	ASSERT_TRUE(File.open(QIODevice::WriteOnly));
	File.write("<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'><rect width='8' height='16' fill='#ffffff'/></svg>");
	File.close();
	const FSlateVectorImageBrush Brush(Path, FVector2D(16.0, 16.0));
	const QImage Picture = FCanvas(16, 16, 3.0f).Box(Origin, FVector2D(16.0, 16.0), Brush).Paint();
	EXPECT_EQ(Picture.pixelColor(23, 10), QColor(Qt::white));
	EXPECT_EQ(Picture.pixelColor(24, 10), Ground());
}

TEST_F(BrushPixels, AMissingImageIsToldOnceAndDrawsNothing)
{
	FLogCapture Log;
	const FString Path = SavePicture("gone.png", QImage(1, 1, QImage::Format_ARGB32)).Replace(TEXT("gone.png"), TEXT("missing.png"));
	const FSlateImageBrush Brush(Path, FVector2D(8.0, 8.0));
	const QImage Picture = FCanvas(8, 8).Box(Origin, FVector2D(8.0, 8.0), Brush).Box(Origin, FVector2D(4.0, 4.0), Brush).Paint();
	EXPECT_EQ(Picture.pixelColor(2, 2), Ground());
	EXPECT_EQ(Log.Count(TEXT("LogDesktop"), ELogVerbosity::Warning, FString(TEXT("Image cannot be read: ")) + Path), 1) << Log.Dump();
}

TEST_F(BrushPixels, NothingIsDrawnOutsideAClip)
{
	FCanvas Canvas(20, 20);
	Canvas.List.BeginChunk(nullptr, FSlateRect(5.0f, 5.0f, 10.0f, 10.0f));
	Canvas.Box(Origin, FVector2D(20.0, 20.0), FSlateColorBrush(FLinearColor::White));
	const TSharedRef<const FSlateDrawChunk> Clipped = Canvas.List.EndChunk();
	Canvas.List.AddChunk(Clipped);
	Canvas.Box(FVector2D(15.0, 15.0), FVector2D(2.0, 2.0), FSlateColorBrush(FLinearColor::White));
	const QImage Picture = Canvas.Paint();
	EXPECT_EQ(Picture.pixelColor(4, 7), Ground());
	EXPECT_EQ(Picture.pixelColor(5, 5), QColor(Qt::white));
	EXPECT_EQ(Picture.pixelColor(9, 9), QColor(Qt::white));
	EXPECT_EQ(Picture.pixelColor(10, 7), Ground());
	EXPECT_EQ(Picture.pixelColor(16, 16), QColor(Qt::white));
}

TEST_F(BrushPixels, ATurnedBoxIsATurnedBox)
{
	FCanvas Canvas(40, 40);
	FPaintGeometry Geometry = Canvas.GetGeometry(Origin, FVector2D(20.0, 20.0)).ToPaintGeometry();
	const float Half = 0.70710678f;
	Geometry.RenderTransform = FSlateRenderTransform(FMatrix2x2{Half, Half, -Half, Half}, FVector2D(20.0, 5.0));
	const FSlateColorBrush Brush(FLinearColor::White);
	FSlateDrawElement::MakeBox(Canvas.List, 0, Geometry, &Brush);
	const QImage Picture = Canvas.Paint();
	EXPECT_EQ(Picture.pixelColor(20, 20), QColor(Qt::white));
	EXPECT_EQ(Picture.pixelColor(20, 8), QColor(Qt::white));
	EXPECT_EQ(Picture.pixelColor(8, 8), Ground());
	EXPECT_EQ(Picture.pixelColor(32, 30), Ground());
}

TEST_F(BrushPixels, OnlyTheAreaAskedForIsTouched)
{
	FSlateWindowElementList List;
	List.BeginChunk(nullptr, {});
	const FSlateColorBrush Brush(FLinearColor::White);
	FSlateDrawElement::MakeBox(List, 0, FGeometry::MakeRoot(FVector2D(10.0, 10.0), FSlateLayoutTransform()).ToPaintGeometry(), &Brush);
	QImage Picture(10, 10, QImage::Format_ARGB32_Premultiplied);
	Picture.fill(Qt::green);
	FSlatePainter().Paint(Picture, *List.EndChunk(), FSlateRect(2.5f, 2.5f, 5.5f, 5.5f));
	for (int Pixel = 0; Pixel < 10; ++Pixel)
	{
		EXPECT_EQ(Picture.pixelColor(Pixel, 4), Pixel >= 2 && Pixel < 6 ? QColor(Qt::white) : QColor(Qt::green)) << Pixel;
	}
}
