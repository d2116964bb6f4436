// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "DesktopApplication.h"
#include "Fonts/QtShapedText.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlatePainter.h"
#include "Styling/CoreStyle.h"

#include <QImage>
#include <gtest/gtest.h>

inline std::ostream& operator<<(std::ostream& Stream, const QColor& Color)
{
	return Stream << qPrintable(Color.name(QColor::HexArgb));
}

/** Something drawn at a scale, on the editor's ground. */
class FCanvas
{
public:
	explicit FCanvas(int Width, int Height, float InScale = 1.0f)
		: Scale(InScale)
		, Picture(qRound(Width * InScale), qRound(Height * InScale), QImage::Format_ARGB32_Premultiplied)
	{
		List.BeginChunk(nullptr, {});
	}

	FGeometry GetGeometry(const FVector2D& Position, const FVector2D& Size) const
	{
		return FGeometry::MakeRoot(Size, FSlateLayoutTransform(Scale, Position * Scale));
	}

	/** Position and size are in units. */
	FCanvas& Box(const FVector2D& Position, const FVector2D& Size, const FSlateBrush& Brush,
		ESlateDrawEffect Effect = ESlateDrawEffect::None, const FLinearColor& Tint = FLinearColor::White)
	{
		FSlateDrawElement::MakeBox(List, 0, GetGeometry(Position, Size).ToPaintGeometry(), &Brush, Effect, Tint);
		return *this;
	}

	FCanvas& Text(const FVector2D& Position, const TCHAR* Text, const FSlateFontInfo& Font, const FLinearColor& Tint = FLinearColor::White)
	{
		const TSharedRef<const FShapedText> Shaped = FDesktopApplication::Get().GetTextShaper().Shape(
			Text, Font, Scale, TextBiDi::ETextDirection::LeftToRight, ETextShapingMethod::Auto);
		const FVector2D Size(Shaped->Width / Scale, Font.Size * 2.0);
		FSlateDrawElement::MakeShapedText(List, 0, GetGeometry(Position, Size).ToPaintGeometry(), Shaped, ESlateDrawEffect::None, Tint);
		return *this;
	}

	/** Ends the drawing. */
	QImage Paint()
	{
		FSlatePainter().Paint(Picture, *List.EndChunk(), FSlateRect(0.0f, 0.0f, Picture.width(), Picture.height()));
		return Picture;
	}

	FSlateWindowElementList List;

private:
	float Scale;
	QImage Picture;
};

inline FSlateFontInfo FontOf(const TCHAR* FaceWord, float Size)
{
	return FCoreStyle::GetDefaultFontStyle(FaceWord, Size);
}
