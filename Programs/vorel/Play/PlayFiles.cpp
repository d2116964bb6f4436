// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayFiles.h"

#include "Application/SlateDesktop.h"
#include "Framework/Application/SlateApplication.h"
#include "Misc/FileHelper.h"
#include "Play/PlayStage.h"
#include "QSlateWidget.h"
#include "QtConversion.h"
#include "Widgets/WidgetTreeDump.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>

static FPlayResult SaveText(const FString& File, const FString& Text)
{
	return FFileHelper::SaveStringToFile(Text, *File) ? FPlayResult::Done()
													  : FPlayResult::Fail(FString::Printf(TEXT("can't write %s"), *File));
}

static FPlayResult SavePicture(const FString& File, const QImage& Picture)
{
	QDir().mkpath(QFileInfo(ToQString(File)).path());
	QImageWriter Writer(ToQString(File), "png");
	if (Writer.write(Picture))
	{
		return FPlayResult::Done();
	}
	return FPlayResult::Fail(FString::Printf(TEXT("can't write %s: %s"), *File, *ToFString(Writer.errorString())));
}

// A step that is about the content of the tab in front.
template <typename FunctionType>
static FPlayStep OfTab(FunctionType Function)
{
	return [Function](IPlayStage& Stage, double)
	{
		const QSlateWidget* const Content = Stage.GetTabContent();
		return Content ? Function(*Content) : FPlayResult::Fail(TEXT("no tab is open"));
	};
}

FPlayStep PlayFiles::Screenshot(const FString& File)
{
	return OfTab([File](const QSlateWidget& Content) { return SavePicture(File, Content.GetPicture()); });
}

FPlayStep PlayFiles::ScreenshotWindow(const FString& File)
{
	return [File](IPlayStage& Stage, double)
	{
		return SavePicture(File, Stage.GetWindow().grab().toImage());
	};
}

FPlayStep PlayFiles::Tree(const FString& File)
{
	return OfTab([File](const QSlateWidget& Content) { return SaveText(File, FWidgetTreeDump::Dump(*Content.GetWindow())); });
}

FPlayStep PlayFiles::Clipboard(const FString& File)
{
	return [File](IPlayStage&, double)
	{
		return SaveText(File, FSlateApplication::Get().GetDesktop().GetClipboardText());
	};
}

FPlayStep PlayFiles::SentToBrowser(const FString& File)
{
	return [File](IPlayStage& Stage, double)
	{
		FString Lines;
		for (const FString& Address : Stage.GetOpenedAddresses())
		{
			Lines += Address + TEXT("\n");
		}
		return SaveText(File, Lines);
	};
}
