// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/UserHand.h"

#include "QSlateWidget.h"

#include <QAction>
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

void FUserHand::SendMouse(QEvent::Type Type, const QPointF& Position, Qt::MouseButton Button, Qt::MouseButtons Pressed)
{
	QMouseEvent Event(Type, Position, Host.mapToGlobal(Position), Button, Pressed, Qt::NoModifier);
	QCoreApplication::sendEvent(&Host, &Event);
}

void FUserHand::MoveTo(const QPointF& Position)
{
	SendMouse(QEvent::MouseMove, Position, Qt::NoButton, Qt::NoButton);
}

void FUserHand::Click(const QPointF& Position)
{
	MoveTo(Position);
	Host.setFocus(Qt::MouseFocusReason);
	SendMouse(QEvent::MouseButtonPress, Position, Qt::LeftButton, Qt::LeftButton);
	SendMouse(QEvent::MouseButtonRelease, Position, Qt::LeftButton, Qt::NoButton);
}

void FUserHand::ComeBack()
{
	for (const QEvent::Type Type : {QEvent::WindowDeactivate, QEvent::WindowActivate})
	{
		QEvent Event(Type);
		QCoreApplication::sendEvent(&Host, &Event);
	}
}

void FUserHand::Wheel(const QPointF& Position, int32 Notches)
{
	constexpr int OneNotch = 120;
	MoveTo(Position);
	const QPoint Step(0, Notches > 0 ? OneNotch : -OneNotch);
	for (int32 Notch = 0; Notch < FMath::Abs(Notches); ++Notch)
	{
		QWheelEvent Event(Position, Host.mapToGlobal(Position), QPoint(), Step, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
		QCoreApplication::sendEvent(&Host, &Event);
	}
}

// Events that do not come from the window system pass the menus by, which a real key asks first.
bool FUserHand::InvokeShortcut(const FKeyStroke& Stroke)
{
	QKeyEvent Override(QEvent::ShortcutOverride, Stroke.Key, Stroke.Modifiers, Stroke.Text);
	Override.ignore();
	QCoreApplication::sendEvent(&Host, &Override);
	if (Override.isAccepted())
	{
		return false;
	}
	const QKeySequence Keys(QKeyCombination(Stroke.Modifiers, Stroke.Key));
	for (QAction* const Action : Host.window()->findChildren<QAction*>())
	{
		if (Action->isEnabled() && Action->shortcuts().contains(Keys))
		{
			Action->trigger();
			return true;
		}
	}
	return false;
}

void FUserHand::SendKey(const FKeyStroke& Stroke)
{
	for (const QEvent::Type Type : {QEvent::KeyPress, QEvent::KeyRelease})
	{
		QKeyEvent Event(Type, Stroke.Key, Stroke.Modifiers, Stroke.Text);
		QCoreApplication::sendEvent(&Host, &Event);
	}
}

void FUserHand::Press(const FKeyStroke& Stroke)
{
	if (!InvokeShortcut(Stroke))
	{
		SendKey(Stroke);
	}
}

// Line breaks and tabs are keys with a meaning of their own; as characters they arrive as from an input method.
static bool IsPlainText(const QString& Character)
{
	return Character != QLatin1String("\n") && Character != QLatin1String("\t");
}

static Qt::Key ToKey(const QString& Character)
{
	const char16_t Unit = Character[0].toUpper().unicode();
	return Unit >= u' ' && Unit <= u'~' ? static_cast<Qt::Key>(Unit) : Qt::Key_unknown;
}

void FUserHand::Type(const QString& Text)
{
	for (qsizetype Index = 0; Index < Text.size();)
	{
		const qsizetype Length = Text[Index].isHighSurrogate() && Index + 1 < Text.size() ? 2 : 1;
		const QString Character = Text.mid(Index, Length);
		Index += Length;
		if (IsPlainText(Character))
		{
			SendKey({ToKey(Character), Qt::NoModifier, Character});
			continue;
		}
		QInputMethodEvent Event;
		Event.setCommitString(Character);
		QCoreApplication::sendEvent(&Host, &Event);
	}
}
