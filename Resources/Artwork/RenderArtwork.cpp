// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.
// Renders the drawings of this folder to the pictures that programs load: build the target RenderArtwork and run it with the project's
// root.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

static bool Render(const QString& Drawing, const QString& Picture)
{
	QSvgRenderer Renderer(Drawing);
	QImage Image(Renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
	Image.fill(Qt::transparent);
	QPainter Painter(&Image);
	Renderer.render(&Painter);
	Painter.end();
	const bool bDone = Renderer.isValid() && Image.convertToFormat(QImage::Format_ARGB32).save(Picture);
	std::fprintf(stderr, "%s: %s\n", bDone ? "rendered" : "cannot render", qPrintable(Picture));
	return bDone;
}

int main(int Count, char** Arguments)
{
	qputenv("QT_QPA_PLATFORM", "offscreen");
	QGuiApplication Application(Count, Arguments);
	const QString Root = Count > 1 ? QString::fromLocal8Bit(Arguments[1]) : QStringLiteral(".");
	const std::pair<const char*, const char*> Pictures[] = {{"Logo", "Resources/Logo500x105"}, {"Icon", "Resources/Icon128"},
		{"Success", "Resources/Success"}, {"Error", "Resources/Error"}, {"Info", "Resources/Info"}, {"White", "Resources/White"},
		{"HyperlinkUnderline", "Platform/Content/Old/HyperlinkUnderline"},
		{"TextBlockHighlightShape", "Platform/Content/TextBlockHighlightShape"}};
	bool bAllDone = true;
	for (const auto& [Drawing, Picture] : Pictures)
	{
		bAllDone &= Render(QStringLiteral("%1/Resources/Artwork/%2.svg").arg(Root, QLatin1String(Drawing)),
			QStringLiteral("%1/%2.png").arg(Root, QLatin1String(Picture)));
	}
	return bAllDone ? 0 : 1;
}
