// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Rendering/ImageCache.h"

#include "Containers/UnrealString.h"
#include "DesktopLog.h"
#include "Misc/Paths.h"
#include "QtConversion.h"
#include "Rendering/ColorConversion.h"

#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

static constexpr int BudgetInBytes = 64 << 20;

// A bare name belongs to the platform's own content: a style set without a content root hands it on as it is.
static QString FindFile(const FName& Name)
{
	const FString Path = Name.ToString();
	return ToQString(FPaths::IsRelative(Path) ? FPaths::Combine(FPaths::EngineContentDir(), Path) : Path);
}

static bool IsDrawing(const QString& Path)
{
	return Path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

FImageCache::FImageCache()
	: Tinted(BudgetInBytes)
{
}

QImage FImageCache::Get(const FName& Name, const QSize& Size, const FLinearColor& Tint)
{
	if (Size.isEmpty())
	{
		return QImage();
	}
	const FKey Key = {FindFile(Name), Size, ToScreenColor(Tint).rgba()};
	if (const QImage* Known = Tinted.object(Key))
	{
		return *Known;
	}
	if (Missing.contains(Key.Path))
	{
		return QImage();
	}
	QImage Image = Load(Key.Path, Size);
	if (Image.isNull())
	{
		Missing.insert(Key.Path);
		UE_LOG(LogDesktop, Warning, TEXT("Image cannot be read: %s"), *ToFString(Key.Path));
		return Image;
	}
	Image = TintImage(Image, Tint);
	Tinted.insert(Key, new QImage(Image), Image.sizeInBytes());
	return Image;
}

QImage FImageCache::Load(const QString& Path, const QSize& Size)
{
	if (!IsDrawing(Path))
	{
		return QImage(Path).scaled(Size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	}
	QSvgRenderer Renderer(Path);
	if (!Renderer.isValid())
	{
		return QImage();
	}
	QImage Image(Size, QImage::Format_ARGB32_Premultiplied);
	Image.fill(Qt::transparent);
	QPainter Painter(&Image);
	Renderer.render(&Painter);
	return Image;
}

QSize FImageCache::GetNaturalSize(const FName& Name)
{
	const QString Path = FindFile(Name);
	if (const QSize* Known = NaturalSizes.object(Path))
	{
		return *Known;
	}
	const QSize Size = IsDrawing(Path) ? QSvgRenderer(Path).defaultSize() : QImageReader(Path).size();
	NaturalSizes.insert(Path, new QSize(Size));
	return Size;
}
