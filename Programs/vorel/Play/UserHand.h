// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Play/KeyStroke.h"

#include <QEvent>
#include <QPointF>

class QSlateWidget;

// Mouse and keyboard of one tab's content. Positions are in units from its top left corner.
class FUserHand
{
public:
	explicit FUserHand(QSlateWidget& InHost)
		: Host(InHost)
	{
	}

	void MoveTo(const QPointF& Position);
	void Click(const QPointF& Position);
	// Away from the user where positive.
	void Wheel(const QPointF& Position, int32 Notches);
	void Press(const FKeyStroke& Stroke);
	void Type(const QString& Text);
	// From another window, in which the user was meanwhile.
	void ComeBack();

private:
	void SendMouse(QEvent::Type Type, const QPointF& Position, Qt::MouseButton Button, Qt::MouseButtons Pressed);
	bool InvokeShortcut(const FKeyStroke& Stroke);
	void SendKey(const FKeyStroke& Stroke);

	QSlateWidget& Host;
};
