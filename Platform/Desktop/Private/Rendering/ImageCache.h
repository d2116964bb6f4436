// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Math/Color.h"
#include "UObject/NameTypes.h"

#include <QCache>
#include <QImage>
#include <QSet>

/** Images from files at the sizes and in the tints in which they are drawn. What was not drawn for long is dropped first. */
class FImageCache
{
public:
	FImageCache();

	/** Of exactly this size in pixels. Null where the file cannot be read, which is logged once. */
	QImage Get(const FName& Name, const QSize& Size, const FLinearColor& Tint);

	/** The size that the image was made for. Empty where the file cannot be read. */
	QSize GetNaturalSize(const FName& Name);

private:
	struct FKey
	{
		QString Path;
		QSize Size;
		QRgb Tint;

		bool operator==(const FKey&) const = default;
		friend size_t qHash(const FKey& Key, size_t Seed)
		{
			return qHashMulti(Seed, Key.Path, Key.Size.width(), Key.Size.height(), Key.Tint);
		}
	};

	QImage Load(const QString& Path, const QSize& Size);

	QCache<FKey, QImage> Tinted;
	QCache<QString, QSize> NaturalSizes;
	QSet<QString> Missing;
};
