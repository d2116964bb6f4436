// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Application/DisplayChoice.h"

#include "Options/CommandLine.h"

#include <QByteArray>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

bool DisplayChoice::IsNamed()
{
	return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void DisplayChoice::Choose(const FCommandLine& Line)
{
	if (Line.bOffscreen)
	{
		qputenv("QT_QPA_PLATFORM", "offscreen");
		// What was set for somebody's screen must not change the pictures.
		for (const char* const Name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_ENABLE_HIGHDPI_SCALING", "QT_FONT_DPI"})
		{
			qunsetenv(Name);
		}
	}
	if (Line.Scale)
	{
		qputenv("QT_SCALE_FACTOR", QByteArray::number(*Line.Scale));
	}
}

static QtMessageHandler PreviousHandler = nullptr;

static void HandleMessage(QtMsgType Type, const QMessageLogContext& Context, const QString& Message)
{
	if (Type == QtFatalMsg)
	{
		std::fprintf(stderr, "vorel: the display can't be opened; without one use --offscreen\n");
		std::_Exit(2);
	}
}

DisplayChoice::FOpeningScope::FOpeningScope()
{
	PreviousHandler = qInstallMessageHandler(&HandleMessage);
}

DisplayChoice::FOpeningScope::~FOpeningScope()
{
	qInstallMessageHandler(PreviousHandler);
}
