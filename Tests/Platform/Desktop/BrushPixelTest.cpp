// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "PaintSupport.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include "Support/TempFolder.h"

namespace
{
const FVector2D Origin(0.0, 0.0);
const FSlateColorBrush White(FLinearColor::White);

/** Pictures that live as long as the test. */
class BrushPixels : public testing::Test
{
protected:
	FString Save(const TCHAR* Name, const QImage& Picture)
	{
		EXPECT_TRUE(Picture.save(QString::fromUtf16(*Folder.GetPath(Name))));
		return Folder.GetPath(Name);
	}

	/** A picture of this width that is tiled by Fields fields on each side, all different. */
	static QImage MakeFields(int Fields, int Width)
	{
		QImage Picture(Width, Width, QImage::Format_ARGB32);
		for (int Pixel = 0; Pixel < Width * Width; ++Pixel)
		{
			Picture.setPixelColor(Pixel % Width, Pixel / Width, FieldColor(Pixel % Width * Fields / Width, Pixel / Width * Fields / Width));
		}
		return Picture;
	}

	static QColor FieldColor(int Column, int Row) { return QColor(60 + 80 * Column, 60 + 80 * Row, 200); }
	static QColor Ground() { return FCanvas(1, 1).Paint().pixelColor(0, 0); }

	/** The color of a box of four pixels. */
	static QColor ColorOf(const FSlateBrush& Brush, const FLinearColor& Tint, ESlateDrawEffect Effect = ESlateDrawEffect::None)
	{
		return FCanvas(4, 4).Box(Origin, FVector2D(4.0, 4.0), Brush, Effect, Tint).Paint().pixelColor(2, 2);
	}

	const FTempFolder Folder;
};
} // namespace

TEST_F(BrushPixels, LinearColorsBecomeScreenColors)
{
	EXPECT_EQ(ColorOf(White, FLinearColor(0.5f, 0.0f, 1.0f)), QColor(188, 0, 255));
	EXPECT_EQ(ColorOf(White, FLinearColor(0.2140411f, 0.0021f, 2.0f)), QColor(127, 7, 255));
	EXPECT_EQ(ColorOf(White, FLinearColor::Transparent), Ground());
	const int Disabled = ColorOf(White, FLinearColor::White, ESlateDrawEffect::DisabledEffect).lightness();
	EXPECT_LT(Disabled, 160) << "disabled is fainter";
	EXPECT_GT(Disabled, Ground().lightness());
}

TEST_F(BrushPixels, EdgesLieOnWholePixels)
{
	const QImage Picture = FCanvas(8, 8, 1.5f).Box(FVector2D(1.1, 1.1), FVector2D(3.0, 3.0), White).Paint();
	for (int Column = 0; Column < Picture.width(); ++Column)
	{
		const bool bInside = Column >= 2 && Column < 6;
		EXPECT_EQ(Picture.pixelColor(Column, 4), bInside ? QColor(Qt::white) : Ground()) << Column;
	}
}

TEST_F(BrushPixels, CornersAreRoundAtEveryScaleAndAnOutlineLiesWithinTheBox)
{
	for (const float Scale : {1.0f, 2.0f})
	{
		const QImage Picture =
			FCanvas(40, 20, Scale).Box(Origin, FVector2D(40.0, 20.0), FSlateRoundedBoxBrush(FLinearColor::White, 8.0f)).Paint();
		const int Radius = qRound(8 * Scale);
		for (const QPoint Outside : {QPoint(0, 0), QPoint(Radius / 8, Radius / 8), QPoint(Picture.width() - 1, Picture.height() - 1)})
		{
			EXPECT_EQ(Picture.pixelColor(Outside), Ground());
		}
		for (const QPoint Inside : {QPoint(Radius / 2, Radius / 2), QPoint(Radius, 0), QPoint(0, Radius)})
		{
			EXPECT_EQ(Picture.pixelColor(Inside), QColor(Qt::white));
		}
	}
	const QImage Circle = FCanvas(20, 20).Box(Origin, FVector2D(20.0, 20.0), FSlateRoundedBoxBrush(FLinearColor::White, 100.0f)).Paint();
	EXPECT_EQ(Circle.pixelColor(1, 1), Ground());
	EXPECT_GT(Circle.pixelColor(10, 0).lightness(), 200);

	const FSlateRoundedBoxBrush Outlined(FLinearColor::White, 4.0f, FLinearColor::Red, 2.0f);
	const QImage Picture = FCanvas(30, 30).Box(FVector2D(5.0, 5.0), FVector2D(20.0, 20.0), Outlined).Paint();
	EXPECT_EQ(Picture.pixelColor(15, 4), Ground());
	EXPECT_EQ(Picture.pixelColor(15, 5), QColor(Qt::red));
	EXPECT_EQ(Picture.pixelColor(15, 6), QColor(Qt::red));
	EXPECT_EQ(Picture.pixelColor(15, 8), QColor(Qt::white));
}

TEST_F(BrushPixels, ABoxStretchesAllButItsCornersAndABorderHasNoMiddle)
{
	const FString Path = Save(TEXT("fields.png"), MakeFields(3, 9));
	const QImage Box = FCanvas(30, 20).Box(Origin, FVector2D(30.0, 20.0), FSlateBoxBrush(Path, FMargin(1.0f / 3.0f))).Paint();
	const QImage Border = FCanvas(30, 20).Box(Origin, FVector2D(30.0, 20.0), FSlateBorderBrush(Path, FMargin(1.0f / 3.0f))).Paint();
	for (int Field = 0; Field < 9; ++Field)
	{
		const QPoint Place = QPoint(1 + 14 * (Field % 3) - Field % 3 / 2, 1 + 9 * (Field / 3) - Field / 3 / 2);
		EXPECT_EQ(Box.pixelColor(Place), FieldColor(Field % 3, Field / 3)) << Field;
		EXPECT_EQ(Border.pixelColor(Place), Field == 4 ? Ground() : FieldColor(Field % 3, Field / 3)) << Field;
	}
}

TEST_F(BrushPixels, AnUnderlineIsOneLineAtTheFootOfItsBox)
{
	const FSlateBorderBrush Brush(FString(TEXT("Old/HyperlinkUnderline.png")), FMargin(0.0f, 0.0f, 0.0f, 0.1875f));
	const QImage Picture = FCanvas(40, 20).Box(Origin, FVector2D(40.0, 20.0), Brush, ESlateDrawEffect::None, FLinearColor::Red).Paint();
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

TEST_F(BrushPixels, ImagesAreTintedInLinearLightAndTilesKeepTheirSize)
{
	QImage Gray(4, 4, QImage::Format_ARGB32);
	Gray.fill(QColor(188, 188, 188));
	const FSlateImageBrush Brush(Save(TEXT("gray.png"), Gray), FVector2D(4.0, 4.0));
	EXPECT_EQ(ColorOf(Brush, FLinearColor::White), QColor(188, 188, 188));
	EXPECT_EQ(ColorOf(Brush, FLinearColor(1.0f, 0.0f, 0.5f)), QColor(188, 0, 137));

	const FSlateImageBrush Tiled(
		Save(TEXT("tile.png"), MakeFields(2, 2)), FVector2D(2.0, 2.0), FLinearColor::White, ESlateBrushTileType::Both);
	const QImage Picture = FCanvas(12, 12).Box(FVector2D(1.0, 1.0), FVector2D(10.0, 10.0), Tiled).Paint();
	for (int Pixel = 0; Pixel < 10; ++Pixel)
	{
		EXPECT_EQ(Picture.pixelColor(1 + Pixel, 1), FieldColor(Pixel % 2, 0));
		EXPECT_EQ(Picture.pixelColor(1 + Pixel, 2), FieldColor(Pixel % 2, 1));
	}
}

TEST_F(BrushPixels, DrawingsAreSharpAtEverySizeAndAMissingImageIsToldOnceAndDrawsNothing)
{
	Folder.Write(TEXT("half.svg"),
		"<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'><rect width='8' height='16' fill='#ffffff'/></svg>");
	const FSlateVectorImageBrush Half(Folder.GetPath(TEXT("half.svg")), FVector2D(16.0, 16.0));
	const QImage Picture = FCanvas(16, 16, 3.0f).Box(Origin, FVector2D(16.0, 16.0), Half).Paint();
	EXPECT_EQ(Picture.pixelColor(23, 10), QColor(Qt::white));
	EXPECT_EQ(Picture.pixelColor(24, 10), Ground());

	const FLogCapture Log;
	const FString Path = Folder.GetPath(TEXT("missing.png"));
	const FSlateImageBrush Missing(Path, FVector2D(8.0, 8.0));
	const QImage Empty = FCanvas(8, 8).Box(Origin, FVector2D(8.0, 8.0), Missing).Box(Origin, FVector2D(4.0, 4.0), Missing).Paint();
	EXPECT_EQ(Empty.pixelColor(2, 2), Ground());
	EXPECT_TEXT(Log.Dump(), TEXT("LogDesktop: Warning: Image cannot be read: ") + Path + TEXT("\n"));
}

TEST_F(BrushPixels, ClipsAndTurnsAndTheAreaAskedForAreKept)
{
	FCanvas Canvas(20, 20);
	Canvas.List.BeginChunk(nullptr, FSlateRect(5.0f, 5.0f, 10.0f, 10.0f));
	Canvas.Box(Origin, FVector2D(20.0, 20.0), White);
	Canvas.List.AddChunk(Canvas.List.EndChunk());
	Canvas.Box(FVector2D(15.0, 15.0), FVector2D(2.0, 2.0), White);
	const QImage Clipped = Canvas.Paint();
	for (int Pixel = 0; Pixel < 20; ++Pixel)
	{
		const bool bDrawn = (Pixel >= 5 && Pixel < 10) || Pixel == 15 || Pixel == 16;
		EXPECT_EQ(Clipped.pixelColor(Pixel, Pixel), bDrawn ? QColor(Qt::white) : Ground()) << Pixel;
	}

	FCanvas Turned(40, 40);
	FPaintGeometry Geometry = Turned.GetGeometry(Origin, FVector2D(20.0, 20.0)).ToPaintGeometry();
	const float Half = 0.70710678f;
	Geometry.RenderTransform = FSlateRenderTransform(FMatrix2x2{Half, Half, -Half, Half}, FVector2D(20.0, 5.0));
	FSlateDrawElement::MakeBox(Turned.List, 0, Geometry, &White);
	const QImage Diamond = Turned.Paint();
	EXPECT_EQ(Diamond.pixelColor(20, 20), QColor(Qt::white));
	EXPECT_EQ(Diamond.pixelColor(20, 8), QColor(Qt::white));
	EXPECT_EQ(Diamond.pixelColor(8, 8), Ground());
	EXPECT_EQ(Diamond.pixelColor(32, 30), Ground());

	QImage Picture(10, 10, QImage::Format_ARGB32_Premultiplied);
	Picture.fill(Qt::green);
	FCanvas Whole(10, 10);
	Whole.Box(Origin, FVector2D(10.0, 10.0), White);
	FSlatePainter().Paint(Picture, *Whole.List.EndChunk(), FSlateRect(2.5f, 2.5f, 5.5f, 5.5f));
	for (int Pixel = 0; Pixel < 10; ++Pixel)
	{
		EXPECT_EQ(Picture.pixelColor(Pixel, 4), Pixel >= 2 && Pixel < 6 ? QColor(Qt::white) : QColor(Qt::green)) << Pixel;
	}
}
