// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Rendering/SlatePainter.h"

#include "Fonts/QtShapedText.h"
#include "Rendering/BoxPainter.h"
#include "Rendering/ColorConversion.h"
#include "Rendering/DrawElements.h"
#include "Rendering/ImageCache.h"
#include "Styling/AppStyle.h"

#include <QPainter>
#include <QPainterPath>

// What cannot be used now keeps this part of its opacity.
static constexpr float DisabledOpacity = 0.45f;

static QTransform ToQTransform(const FSlateRenderTransform& Transform)
{
	const FMatrix2x2& Matrix = Transform.GetMatrix();
	const FVector2D Translation = Transform.GetTranslation();
	return QTransform(Matrix.M00, Matrix.M01, Matrix.M10, Matrix.M11, Translation.X, Translation.Y);
}

// Whether the way to the device only moves and scales, by exactly this.
static bool IsScaledBy(const QTransform& Transform, float Scale)
{
	const auto IsNear = [](double Value, double Expected)
	{
		return qAbs(Value - Expected) < 1.0e-4;
	};
	return IsNear(Transform.m11(), Scale) && IsNear(Transform.m22(), Scale) && IsNear(Transform.m12(), 0.0) && IsNear(Transform.m21(), 0.0);
}

static QRect ToNearestPixels(const FSlateRect& Rect)
{
	return QRect(QPoint(qRound(Rect.Left), qRound(Rect.Top)), QPoint(qRound(Rect.Right) - 1, qRound(Rect.Bottom) - 1));
}

static QRect ToCoveredPixels(const FSlateRect& Rect)
{
	return QRect(QPoint(qFloor(Rect.Left), qFloor(Rect.Top)), QPoint(qCeil(Rect.Right) - 1, qCeil(Rect.Bottom) - 1));
}

namespace
{
/** Draws one tree of chunks. */
class FChunkPainter
{
public:
	FChunkPainter(QPainter& InPainter, FImageCache& InImages)
		: Painter(InPainter)
		, Images(InImages)
	{
	}

	void PaintChunk(const FSlateDrawChunk& Chunk, const FSlateRect& Area);

private:
	void PaintElement(const FSlateDrawElement& Element);
	void PaintPayload(const FSlateBoxPayload& Box, const FPaintGeometry& Geometry, const FLinearColor& Tint);
	void PaintPayload(const FSlateTextPayload& Text, const FPaintGeometry& Geometry, const FLinearColor& Tint);

	QPainter& Painter;
	FImageCache& Images;
};

void FChunkPainter::PaintChunk(const FSlateDrawChunk& Chunk, const FSlateRect& Area)
{
	FSlateRect Visible = Area;
	if (Chunk.GetClip())
	{
		Visible = Area.IntersectionWith(*Chunk.GetClip());
		Painter.save();
		Painter.setClipRect(ToNearestPixels(*Chunk.GetClip()), Qt::IntersectClip);
	}
	for (const FSlateDrawChunk::FItem& Item : Chunk.GetItems())
	{
		if (const FSlateDrawElement* Element = std::get_if<FSlateDrawElement>(&Item))
		{
			if (FSlateRect::DoRectanglesIntersect(Element->GetBounds(), Visible))
			{
				PaintElement(*Element);
			}
			continue;
		}
		const FSlateDrawChunk& Child = *std::get<TSharedRef<const FSlateDrawChunk>>(Item);
		if (FSlateRect::DoRectanglesIntersect(Child.GetBounds(), Visible))
		{
			PaintChunk(Child, Visible);
		}
	}
	if (Chunk.GetClip())
	{
		Painter.restore();
	}
}

void FChunkPainter::PaintElement(const FSlateDrawElement& Element)
{
	FLinearColor Tint = Element.GetTint();
	Tint.A *= Element.GetDrawEffects() == ESlateDrawEffect::DisabledEffect ? DisabledOpacity : 1.0f;
	if (Tint.A > 0.0f)
	{
		std::visit([&](const auto& Payload) { PaintPayload(Payload, Element.GetGeometry(), Tint); }, Element.GetPayload());
	}
}

void FChunkPainter::PaintPayload(const FSlateBoxPayload& Box, const FPaintGeometry& Geometry, const FLinearColor& Tint)
{
	const QTransform ToDevice = ToQTransform(Geometry.RenderTransform);
	const QRectF Local(0.0, 0.0, Geometry.LocalSize.X, Geometry.LocalSize.Y);
	if (ToDevice.type() <= QTransform::TxScale)
	{
		// Edges lie on whole pixels, so that areas that touch leave no seam and thin lines stay sharp.
		const QRectF Device = ToDevice.mapRect(Local);
		const QRectF Snapped(
			QPointF(qRound(Device.left()), qRound(Device.top())), QPointF(qRound(Device.right()), qRound(Device.bottom())));
		PaintBox(Painter, Images, Box.Brush, {Snapped, qAbs(ToDevice.m11())}, Tint);
		return;
	}
	Painter.save();
	Painter.setTransform(QTransform::fromScale(1.0 / Geometry.DrawScale, 1.0 / Geometry.DrawScale) * ToDevice);
	PaintBox(Painter, Images, Box.Brush, {QRectF(QPointF(), Local.size() * Geometry.DrawScale), Geometry.DrawScale}, Tint);
	Painter.restore();
}

void FChunkPainter::PaintPayload(const FSlateTextPayload& Text, const FPaintGeometry& Geometry, const FLinearColor& Tint)
{
	const FQtShapedText& Shaped = static_cast<const FQtShapedText&>(*Text.Text);
	const QTransform ToDevice = ToQTransform(Geometry.RenderTransform);
	const bool bAsShaped = IsScaledBy(ToDevice, Geometry.DrawScale);
	QPointF Baseline(0.0, Shaped.Ascent);
	if (bAsShaped)
	{
		Baseline = QPointF(ToDevice.dx(), qRound(ToDevice.dy() + Shaped.Ascent));
	}
	else
	{
		Painter.save();
		Painter.setTransform(QTransform::fromScale(1.0 / Geometry.DrawScale, 1.0 / Geometry.DrawScale) * ToDevice);
	}
	Painter.setPen(ToScreenColor(Tint));
	for (const FGlyphRun& Run : Shaped.Runs)
	{
		Painter.setOpacity(Run.bColored ? Tint.A : 1.0);
		Painter.drawGlyphRun(Baseline, Run.Glyphs);
	}
	Painter.setOpacity(1.0);
	if (!bAsShaped)
	{
		Painter.restore();
	}
}

} // namespace

FSlatePainter::FSlatePainter()
	: Images(MakeUnique<FImageCache>())
{
}

FSlatePainter::~FSlatePainter() = default;

void FSlatePainter::Paint(QImage& Target, const FSlateDrawChunk& Chunk, const FSlateRect& Area)
{
	QPainter Painter(&Target);
	const QRect Pixels = ToCoveredPixels(Area) & Target.rect();
	Painter.setClipRect(Pixels);
	Painter.fillRect(Pixels, ToScreenColor(FAppStyle::Get().GetColor(TEXT("Colors.Background"))));
	Painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
	FChunkPainter(Painter, *Images)
		.PaintChunk(Chunk, FSlateRect(Pixels.left(), Pixels.top(), Pixels.right() + 1.0f, Pixels.bottom() + 1.0f));
}
