// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "DesktopApplication.h"
#include "Framework/Application/SlateApplication.h"
#include "QSlateWidget.h"
#include "Support/Probe.h"
#include "Widgets/SWindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <gtest/gtest.h>

/** Lets frames run until nothing is left to do. */
inline void RunFrames()
{
	FFrameLoop& Loop = FDesktopApplication::Get().GetFrameLoop();
	for (int Round = 0; Round < 200 && !Loop.IsIdle(); ++Round)
	{
		QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
	}
	EXPECT_TRUE(Loop.IsIdle());
	QCoreApplication::processEvents();
}

/** A window of a hundred by fifty units with content. */
class FTestHost
{
public:
	explicit FTestHost(const TSharedRef<SWidget>& Content)
		: Window(SNew(SWindow)[Content])
		, Widget(FDesktopApplication::Get(), Window)
	{
		Widget.resize(100, 50);
		Widget.show();
		Widget.activateWindow();
		Widget.setFocus();
		RunFrames();
	}

	void Mouse(QEvent::Type Type, const QPointF& Position, Qt::MouseButton Button, Qt::MouseButtons Pressed,
		Qt::KeyboardModifiers Modifiers = Qt::NoModifier)
	{
		QMouseEvent Event(Type, Position, Widget.mapToGlobal(Position), Button, Pressed, Modifiers);
		QApplication::sendEvent(&Widget, &Event);
	}

	/** Whether the widget took it. */
	bool Key(QEvent::Type Type, Qt::Key Key, Qt::KeyboardModifiers Modifiers = Qt::NoModifier, const QString& Text = QString())
	{
		QKeyEvent Event(Type, Key, Modifiers, Text);
		Event.ignore();
		QApplication::sendEvent(&Widget, &Event);
		return Event.isAccepted();
	}

	TSharedRef<SWindow> Window;
	QSlateWidget Widget;
};
