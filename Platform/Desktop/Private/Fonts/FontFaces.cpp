// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Fonts/FontFaces.h"

#include "Containers/StringConv.h"
#include "DesktopLog.h"
#include "Math/UnrealMathUtility.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLocale>
#include <QRawFont>
#include <QSet>
#include <QtEndian>

struct FFaceSource
{
	const char* Word;
	const char* Family;
	QFont::Weight Weight;
	bool bItalic;
	const char* File;
	const char* Package;
};

static constexpr const char* TextPackage = "fonts-roboto-unhinted";

static const FFaceSource FaceSources[] = {
	{"Regular", "Roboto", QFont::Normal, false, "roboto/unhinted/RobotoTTF/Roboto-Regular.ttf", TextPackage},
	{"Bold", "Roboto", QFont::Bold, false, "roboto/unhinted/RobotoTTF/Roboto-Bold.ttf", TextPackage},
	{"Italic", "Roboto", QFont::Normal, true, "roboto/unhinted/RobotoTTF/Roboto-Italic.ttf", TextPackage},
	{"BoldItalic", "Roboto", QFont::Bold, true, "roboto/unhinted/RobotoTTF/Roboto-BoldItalic.ttf", TextPackage},
	{"Medium", "Roboto", QFont::Medium, false, "roboto/unhinted/RobotoTTF/Roboto-Medium.ttf", TextPackage},
	{"Light", "Roboto", QFont::Light, false, "roboto/unhinted/RobotoTTF/Roboto-Light.ttf", TextPackage},
	{"VeryLight", "Roboto", QFont::Thin, false, "roboto/unhinted/RobotoTTF/Roboto-Thin.ttf", TextPackage},
	{"Black", "Roboto", QFont::Black, false, "roboto/unhinted/RobotoTTF/Roboto-Black.ttf", TextPackage},
	{"BlackItalic", "Roboto", QFont::Black, true, "roboto/unhinted/RobotoTTF/Roboto-BlackItalic.ttf", TextPackage},
	{"BoldCondensed", "Roboto Condensed", QFont::Bold, false, "roboto/unhinted/RobotoCondensed-Bold.ttf", TextPackage},
	{"BoldCondensedItalic", "Roboto Condensed", QFont::Bold, true, "roboto/unhinted/RobotoCondensed-BoldItalic.ttf", TextPackage},
	{"Mono", "JetBrains Mono", QFont::Normal, false, "jetbrains-mono/JetBrainsMono-Regular.ttf", "fonts-jetbrains-mono"},
};

static const FFaceSource EmojiSource = {
	"Emoji", "Noto Color Emoji", QFont::Normal, false, "noto/NotoColorEmoji.ttf", "fonts-noto-color-emoji"};

// The same characters look different from language to language.
static QString GetHanFamily()
{
	const QLocale Locale = QLocale::system();
	switch (Locale.language())
	{
	case QLocale::Japanese:
		return QStringLiteral("Noto Sans CJK JP");
	case QLocale::Korean:
		return QStringLiteral("Noto Sans CJK KR");
	default:
		return Locale.script() == QLocale::TraditionalHanScript ? QStringLiteral("Noto Sans CJK TC") : QStringLiteral("Noto Sans CJK SC");
	}
}

// Asked in this order for what a face lacks: symbols before CJK, whose own arrows and marks are a full em wide.
static QStringList GetFallbackFamilies()
{
	return {"Noto Sans", "Noto Sans Math", "Noto Sans Symbols", "Noto Sans Symbols2", "Noto Sans Arabic", "Noto Sans Hebrew",
		"Noto Sans Thai", "Noto Sans Devanagari", GetHanFamily(), "DejaVu Sans", "Noto Color Emoji"};
}

// Once in a process, to which its fonts belong.
static void LoadFile(const FFaceSource& Source)
{
	static QSet<const char*> Loaded;
	if (Loaded.contains(Source.File))
	{
		return;
	}
	Loaded.insert(Source.File);
	const QString Path = QStringLiteral("/usr/share/fonts/truetype/") + QLatin1String(Source.File);
	const bool bLoaded = QFile::exists(Path) && QFontDatabase::addApplicationFont(Path) >= 0;
	if (!bLoaded && !QFontDatabase::families().contains(QLatin1String(Source.Family)))
	{
		UE_LOG(LogDesktop, Error, TEXT("The font %s is missing, another one stands in for it. Install the package %s."),
			UTF8_TO_TCHAR(Source.Family), UTF8_TO_TCHAR(Source.Package));
	}
}

static TSharedPtr<FFontFace> LoadFace(const FFaceSource& Source)
{
	LoadFile(Source);
	QFont Font;
	Font.setFamilies(QStringList(QLatin1String(Source.Family)) + GetFallbackFamilies());
	Font.setPixelSize(FFontFace::ShapingPixelSize);
	Font.setWeight(Source.Weight);
	Font.setItalic(Source.bItalic);
	// Sharp horizontal edges; the advances stay those of the design.
	Font.setHintingPreference(QFont::PreferVerticalHinting);
	Font.setStyleStrategy(QFont::NoSubpixelAntialias);
	return MakeShared<FFontFace>(Font, FName(UTF8_TO_TCHAR(Source.Word)) == FName(TEXT("Mono")));
}

// One number of a font's binary table in units of its design; 0 beyond the table's end.
static float ReadDesignUnits(const QByteArray& Table, qsizetype Offset)
{
	return Offset + 2 <= Table.size() ? static_cast<float>(qFromBigEndian<qint16>(Table.constData() + Offset)) : 0.0f;
}

// From the tables themselves, since a font engine rounds its measures at the size that it was loaded for.
static FFaceMeasures ReadMeasures(const QRawFont& Font)
{
	FFaceMeasures Measures;
	const float Em = FMath::Max(1.0f, static_cast<float>(Font.unitsPerEm()));
	const QByteArray Header = Font.fontTable("hhea");
	const QByteArray Post = Font.fontTable("post");
	Measures.Ascent = ReadDesignUnits(Header, 4) / Em;
	Measures.Descent = -ReadDesignUnits(Header, 6) / Em;
	Measures.LineGap = ReadDesignUnits(Header, 8) / Em;
	Measures.UnderlineOffset = -ReadDesignUnits(Post, 8) / Em;
	Measures.UnderlineThickness = ReadDesignUnits(Post, 10) / Em;
	if (Measures.Ascent + Measures.Descent <= 0.0f)
	{
		Measures = {0.8f, 0.2f, 0.0f, 0.1f, 0.05f};
	}
	return Measures;
}

static constexpr int SpacesPerTab = 4;

static void PrepareLayout(QTextLayout& Layout, const QFont& Font)
{
	QTextOption Option(Qt::AlignLeft | Qt::AlignAbsolute);
	Option.setUseDesignMetrics(true);
	Option.setWrapMode(QTextOption::NoWrap);
	Option.setFlags(QTextOption::IncludeTrailingSpaces);
	Option.setTabStopDistance(SpacesPerTab * QFontMetricsF(Font).horizontalAdvance(QLatin1Char(' ')));
	Layout.setFont(Font);
	Layout.setTextOption(Option);
}

FFontFace::FFontFace(const QFont& InFont, bool bInMonospaced)
	: Measures(ReadMeasures(QRawFont::fromFont(InFont)))
{
	PrepareLayout(FullLayout, InFont);
	QFont KerningFont = InFont;
	if (bInMonospaced)
	{
		KerningFont.setStyleStrategy(QFont::StyleStrategy(QFont::NoSubpixelAntialias | QFont::PreferNoShaping));
	}
	else
	{
		// Spaced text is never joined into ligatures; this spacing is the least there is, 1/8192 em.
		KerningFont.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64.0);
	}
	PrepareLayout(KerningLayout, KerningFont);
}

FFontFace& FFontFaces::Find(const FName& Word)
{
	if (const TSharedPtr<FFontFace>* Face = Faces.Find(Word))
	{
		return **Face;
	}
	const FFaceSource* Source = FaceSources;
	for (const FFaceSource& Candidate : FaceSources)
	{
		Source = FName(UTF8_TO_TCHAR(Candidate.Word)) == Word ? &Candidate : Source;
	}
	return *Faces.Add(Word, LoadFace(*Source));
}

FFontFace& FFontFaces::GetEmoji()
{
	if (!Emoji)
	{
		Emoji = LoadFace(EmojiSource);
	}
	return *Emoji;
}
