// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Fonts/QtTextShaper.h"

#include "Fonts/DesktopTextShaper.h"
#include "Fonts/EmojiSegments.h"
#include "QtConversion.h"

#include <algorithm>

static constexpr char16_t LeftToRightOverride = 0x202D;
static constexpr char16_t RightToLeftOverride = 0x202E;
static constexpr QChar EmojiSelector = QChar(0xFE0F);

static float PixelSizeOf(const FSlateFontInfo& Font, float Scale)
{
	return Font.Size * 96.0f / 72.0f * Scale;
}

static EFontFeatures FeaturesOf(ETextShapingMethod Method, bool bRightToLeft)
{
	const bool bAll = Method == ETextShapingMethod::FullShaping || (Method == ETextShapingMethod::Auto && bRightToLeft);
	return bAll ? EFontFeatures::All : EFontFeatures::KerningOnly;
}

// The caller has resolved directions over the whole paragraph. Where this text alone would resolve to another one, it is overridden.
static bool NeedsOverride(const QString& Text, bool bRightToLeft)
{
	const QList<uint> Characters = Text.toUcs4();
	return std::any_of(Characters.begin(), Characters.end(),
		[bRightToLeft](uint Character)
		{
			const QChar::Direction Direction = QChar::direction(Character);
			const bool bRight = Direction == QChar::DirR || Direction == QChar::DirAL || Direction == QChar::DirAN;
			const bool bLeft = Direction == QChar::DirL || Direction == QChar::DirEN || Direction == QChar::DirAN;
			return bRightToLeft ? bLeft : bRight;
		});
}

/** A segment as it is laid out. */
struct FSegmentText
{
	QString Text;
	/** Where each unit of the segment is in it, and its end. */
	QList<int> Places;

	FSegmentText(QStringView Segment, bool bEmoji, bool bRightToLeft)
	{
		if (NeedsOverride(Segment.toString(), bRightToLeft))
		{
			Text.append(QChar(bRightToLeft ? RightToLeftOverride : LeftToRightOverride));
		}
		for (const QChar Unit : Segment)
		{
			Places.append(static_cast<int>(Text.size()));
			// The emoji font has no picture of its own for the selector, whose search in other fonts would tear a sequence apart.
			if (!bEmoji || Unit != EmojiSelector)
			{
				Text.append(Unit);
			}
		}
		Places.append(static_cast<int>(Text.size()));
	}
};

static void LayOut(QTextLayout& Layout, const QString& Text, bool bRightToLeft)
{
	const Qt::LayoutDirection Direction = bRightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
	if (Layout.textOption().textDirection() != Direction)
	{
		QTextOption Option = Layout.textOption();
		Option.setTextDirection(Direction);
		Layout.setTextOption(Option);
	}
	Layout.setText(Text);
	Layout.beginLayout();
	Layout.createLine();
	Layout.endLayout();
}

TSharedRef<const FShapedText> FQtTextShaper::Shape(
	FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod Method)
{
	const bool bRightToLeft = Direction == TextBiDi::ETextDirection::RightToLeft;
	const float PixelSize = PixelSizeOf(Font, Scale);
	FFontFace& Face = Faces.Find(Font.TypefaceFontName);
	TSharedRef<FQtShapedText> Shaped = MakeShared<FQtShapedText>();
	Shaped->Ascent = Face.GetMeasures().Ascent * PixelSize;
	Shaped->CaretOffsets.Init(0.0f, Text.Len() + 1);

	QList<FPresentationSegment> Segments = SplitByPresentation(QStringView(Text.GetData(), Text.Len()));
	if (bRightToLeft)
	{
		std::reverse(Segments.begin(), Segments.end());
	}
	for (const FPresentationSegment& Segment : Segments)
	{
		QTextLayout& Layout =
			Segment.bEmoji ? Faces.GetEmoji().GetLayout(EFontFeatures::All) : Face.GetLayout(FeaturesOf(Method, bRightToLeft));
		const FSegmentText SegmentText(QStringView(Text.GetData() + Segment.Start, Segment.Length), Segment.bEmoji, bRightToLeft);
		LayOut(Layout, SegmentText.Text, bRightToLeft);
		AppendSegment(*Shaped, Segment, Layout, SegmentText.Places, PixelSize);
	}
	return Shaped;
}

void FQtTextShaper::AppendSegment(
	FQtShapedText& Shaped, const FPresentationSegment& Segment, const QTextLayout& Layout, const QList<int>& Places, float PixelSize)
{
	const double Scale = static_cast<double>(PixelSize) / FFontFace::ShapingPixelSize;
	const QTextLine Line = Layout.lineAt(0);
	const double First = Line.cursorToX(Places.first());
	const double Last = Line.cursorToX(Places.last());
	const double LayoutLeft = qMin(First, Last);
	const double Left = Shaped.Width;
	Shaped.Width = static_cast<float>(Left + qAbs(Last - First) * Scale);

	const int32 Start = static_cast<int32>(Segment.Start);
	const int32 End = Start + static_cast<int32>(Segment.Length);
	// The offset behind a segment is that before the next one, which may lie elsewhere.
	const int32 LastOwn = End == Shaped.CaretOffsets.Num() - 1 ? End : End - 1;
	for (int32 Unit = Start; Unit <= LastOwn; ++Unit)
	{
		Shaped.CaretOffsets[Unit] = static_cast<float>(Left + (Line.cursorToX(Places[Unit - Start]) - LayoutLeft) * Scale);
	}
	for (QGlyphRun& Run : Layout.glyphRuns())
	{
		QList<QPointF> Positions = Run.positions();
		for (QPointF& Position : Positions)
		{
			Position = QPointF(Left + (Position.x() - LayoutLeft) * Scale, (Position.y() - Line.ascent()) * Scale);
		}
		Run.setPositions(Positions);
		Run.setRawFont(Resize(Run.rawFont(), PixelSize));
		Shaped.Runs.Add({Run, Segment.bEmoji});
	}
}

QRawFont FQtTextShaper::Resize(const QRawFont& Font, float PixelSize)
{
	QRawFont& Sized = SizedFonts[PixelSize][Font];
	if (!Sized.isValid())
	{
		Sized = Font;
		Sized.setPixelSize(PixelSize);
	}
	return Sized;
}

FFontMetrics FQtTextShaper::GetMetrics(const FSlateFontInfo& Font, float Scale)
{
	const FFaceMeasures& Measures = Faces.Find(Font.TypefaceFontName).GetMeasures();
	const float PixelSize = PixelSizeOf(Font, Scale);
	FFontMetrics Metrics;
	Metrics.Ascent = Measures.Ascent * PixelSize;
	Metrics.Descent = Measures.Descent * PixelSize;
	Metrics.LineHeight = (Measures.Ascent + Measures.Descent + Measures.LineGap) * PixelSize;
	Metrics.UnderlineOffset = Measures.UnderlineOffset * PixelSize;
	Metrics.UnderlineThickness = Measures.UnderlineThickness * PixelSize;
	return Metrics;
}

TUniquePtr<ITextShaper> MakeDesktopTextShaper()
{
	return MakeUnique<FQtTextShaper>();
}
