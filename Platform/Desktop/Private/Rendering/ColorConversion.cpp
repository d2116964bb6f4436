// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Rendering/ColorConversion.h"

#include <array>

QColor ToScreenColor(const FLinearColor& Color)
{
	const FColor Screen = Color.ToFColor(true);
	return QColor(Screen.R, Screen.G, Screen.B, Screen.A);
}

// What becomes of each value of a channel, for all four channels.
static std::array<FColor, 256> MakeTintTable(const FLinearColor& Tint)
{
	std::array<FColor, 256> Table;
	for (int Value = 0; Value < 256; ++Value)
	{
		const uint8 Channel = static_cast<uint8>(Value);
		Table[Value] = (FLinearColor(FColor(Channel, Channel, Channel, Channel)) * Tint).ToFColor(true);
	}
	return Table;
}

QImage TintImage(const QImage& Image, const FLinearColor& Tint)
{
	const std::array<FColor, 256> Table = MakeTintTable(Tint);
	QImage Tinted = Image.convertToFormat(QImage::Format_ARGB32);
	for (int Row = 0; Row < Tinted.height(); ++Row)
	{
		QRgb* Pixels = reinterpret_cast<QRgb*>(Tinted.scanLine(Row));
		for (int Column = 0; Column < Tinted.width(); ++Column)
		{
			const QRgb Pixel = Pixels[Column];
			Pixels[Column] = qRgba(Table[qRed(Pixel)].R, Table[qGreen(Pixel)].G, Table[qBlue(Pixel)].B, Table[qAlpha(Pixel)].A);
		}
	}
	return Tinted.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}
