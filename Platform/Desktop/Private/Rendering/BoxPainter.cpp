// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Rendering/BoxPainter.h"

#include "Rendering/ColorConversion.h"
#include "Rendering/ImageCache.h"
#include "Styling/SlateBrush.h"

#include <QPainter>
#include <QPainterPath>
#include <array>

static QPainterPath MakeRoundedPath(const QRectF& Rect, const FSlateBrushOutlineSettings& Outline, double Scale, double Inset)
{
	const QRectF Inner = Rect.adjusted(Inset, Inset, -Inset, -Inset);
	const auto RadiusOf = [&](double Units)
	{
		return qBound(0.0, Units * Scale - Inset, qMin(Inner.width(), Inner.height()) / 2.0);
	};
	const double TopLeft = RadiusOf(Outline.CornerRadii.X);
	const double TopRight = RadiusOf(Outline.CornerRadii.Y);
	const double BottomRight = RadiusOf(Outline.CornerRadii.Z);
	const double BottomLeft = RadiusOf(Outline.CornerRadii.W);
	QPainterPath Path;
	Path.moveTo(Inner.left(), Inner.top() + TopLeft);
	Path.arcTo(Inner.left(), Inner.top(), 2 * TopLeft, 2 * TopLeft, 180, -90);
	Path.arcTo(Inner.right() - 2 * TopRight, Inner.top(), 2 * TopRight, 2 * TopRight, 90, -90);
	Path.arcTo(Inner.right() - 2 * BottomRight, Inner.bottom() - 2 * BottomRight, 2 * BottomRight, 2 * BottomRight, 0, -90);
	Path.arcTo(Inner.left(), Inner.bottom() - 2 * BottomLeft, 2 * BottomLeft, 2 * BottomLeft, 270, -90);
	Path.closeSubpath();
	return Path;
}

static void PaintRoundedBox(QPainter& Painter, const FSlateBrush& Brush, const FBoxPlace& Place, const FLinearColor& Tint)
{
	const FSlateBrushOutlineSettings& Outline = Brush.OutlineSettings;
	const double Width = Outline.Width * Place.Scale;
	FLinearColor OutlineColor = Outline.Color.GetSpecifiedColor();
	OutlineColor.A *= Tint.A;
	const bool bOutlined = Width > 0.0 && OutlineColor.A > 0.0f;
	// The outline lies within the box; its line runs along its own middle.
	const QPainterPath Path = MakeRoundedPath(Place.Rect, Outline, Place.Scale, bOutlined ? Width / 2.0 : 0.0);
	Painter.setPen(bOutlined ? QPen(ToScreenColor(OutlineColor), Width) : QPen(Qt::NoPen));
	Painter.setBrush(ToScreenColor(Tint));
	Painter.drawPath(Path);
}

static QSize PixelsOf(const QSizeF& Size)
{
	return QSize(qMax(1, qRound(Size.width())), qMax(1, qRound(Size.height())));
}

static void PaintTiles(QPainter& Painter, FImageCache& Images, const FSlateBrush& Brush, const FBoxPlace& Place, const FLinearColor& Tint)
{
	QSizeF Tile(Brush.ImageSize.X * Place.Scale, Brush.ImageSize.Y * Place.Scale);
	if (Brush.Tiling == ESlateBrushTileType::Horizontal)
	{
		Tile.setHeight(Place.Rect.height());
	}
	else if (Brush.Tiling == ESlateBrushTileType::Vertical)
	{
		Tile.setWidth(Place.Rect.width());
	}
	const QImage Image = Images.Get(Brush.GetResourceName(), PixelsOf(Tile), Tint);
	if (!Image.isNull())
	{
		Painter.setBrushOrigin(Place.Rect.topLeft());
		Painter.fillRect(Place.Rect, QBrush(Image));
	}
}

static void PaintImage(QPainter& Painter, FImageCache& Images, const FSlateBrush& Brush, const FBoxPlace& Place, const FLinearColor& Tint)
{
	if (Brush.GetResourceName().IsNone())
	{
		Painter.fillRect(Place.Rect, ToScreenColor(Tint));
	}
	else if (Brush.Tiling != ESlateBrushTileType::NoTile)
	{
		PaintTiles(Painter, Images, Brush, Place, Tint);
	}
	else
	{
		const QImage Image = Images.Get(Brush.GetResourceName(), PixelsOf(Place.Rect.size()), Tint);
		Painter.drawImage(Place.Rect, Image);
	}
}

// Four coordinates that cut Start to Start + Length into edge, middle, edge; edges that do not fit share what there is.
static std::array<double, 4> CutInThree(double Start, double Length, double First, double Last)
{
	const double Shrink = First + Last > Length ? Length / (First + Last) : 1.0;
	return {Start, Start + First * Shrink, Start + Length - Last * Shrink, Start + Length};
}

static void PaintNineParts(
	QPainter& Painter, FImageCache& Images, const FSlateBrush& Brush, const FBoxPlace& Place, const FLinearColor& Tint)
{
	const QSizeF Pixels = QSizeF(Images.GetNaturalSize(Brush.GetResourceName())) * Place.Scale;
	const QImage Image = Images.Get(Brush.GetResourceName(), PixelsOf(Pixels), Tint);
	if (Image.isNull())
	{
		return;
	}
	const double Left = qRound(Brush.Margin.Left * Image.width());
	const double Top = qRound(Brush.Margin.Top * Image.height());
	const double Right = qRound(Brush.Margin.Right * Image.width());
	const double Bottom = qRound(Brush.Margin.Bottom * Image.height());
	const auto SourceX = CutInThree(0.0, Image.width(), Left, Right);
	const auto SourceY = CutInThree(0.0, Image.height(), Top, Bottom);
	const auto TargetX = CutInThree(Place.Rect.left(), Place.Rect.width(), Left, Right);
	const auto TargetY = CutInThree(Place.Rect.top(), Place.Rect.height(), Top, Bottom);
	for (int Row = 0; Row < 3; ++Row)
	{
		for (int Column = 0; Column < 3; ++Column)
		{
			const QRectF Source(QPointF(SourceX[Column], SourceY[Row]), QPointF(SourceX[Column + 1], SourceY[Row + 1]));
			const QRectF Target(QPointF(TargetX[Column], TargetY[Row]), QPointF(TargetX[Column + 1], TargetY[Row + 1]));
			const bool bMiddle = Row == 1 && Column == 1;
			const bool bDrawn = Brush.DrawAs == ESlateBrushDrawType::Box || !bMiddle;
			if (bDrawn && !Source.isEmpty() && !Target.isEmpty())
			{
				Painter.drawImage(Target, Image, Source);
			}
		}
	}
}

void PaintBox(QPainter& Painter, FImageCache& Images, const FSlateBrush& Brush, const FBoxPlace& Place, const FLinearColor& Tint)
{
	switch (Brush.DrawAs)
	{
	case ESlateBrushDrawType::NoDrawType:
		break;
	case ESlateBrushDrawType::Image:
		PaintImage(Painter, Images, Brush, Place, Tint);
		break;
	case ESlateBrushDrawType::RoundedBox:
		PaintRoundedBox(Painter, Brush, Place, Tint);
		break;
	case ESlateBrushDrawType::Box:
	case ESlateBrushDrawType::Border:
		PaintNineParts(Painter, Images, Brush, Place, Tint);
		break;
	}
}
