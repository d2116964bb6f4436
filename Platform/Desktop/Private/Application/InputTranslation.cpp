// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Application/InputTranslation.h"

#include "QtConversion.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>

FModifierKeysState InputTranslation::ToModifiers(Qt::KeyboardModifiers Modifiers)
{
	return FModifierKeysState(Modifiers.testFlag(Qt::ShiftModifier), Modifiers.testFlag(Qt::ControlModifier),
		Modifiers.testFlag(Qt::AltModifier), Modifiers.testFlag(Qt::MetaModifier));
}

FKey InputTranslation::ToMouseButton(Qt::MouseButton Button)
{
	switch (Button)
	{
	case Qt::LeftButton:
		return EKeys::LeftMouseButton;
	case Qt::MiddleButton:
		return EKeys::MiddleMouseButton;
	case Qt::RightButton:
		return EKeys::RightMouseButton;
	default:
		return EKeys::Invalid;
	}
}

FKey InputTranslation::ToKey(const QKeyEvent& Event)
{
	static const QHash<int, FKey> Keys = {
		{Qt::Key_Backspace, EKeys::BackSpace},
		{Qt::Key_Delete, EKeys::Delete},
		{Qt::Key_Insert, EKeys::Insert},
		{Qt::Key_Return, EKeys::Enter},
		{Qt::Key_Enter, EKeys::Enter},
		{Qt::Key_Escape, EKeys::Escape},
		{Qt::Key_Space, EKeys::SpaceBar},
		{Qt::Key_Tab, EKeys::Tab},
		{Qt::Key_Backtab, EKeys::Tab},
		{Qt::Key_Left, EKeys::Left},
		{Qt::Key_Right, EKeys::Right},
		{Qt::Key_Up, EKeys::Up},
		{Qt::Key_Down, EKeys::Down},
		{Qt::Key_Home, EKeys::Home},
		{Qt::Key_End, EKeys::End},
		{Qt::Key_PageUp, EKeys::PageUp},
		{Qt::Key_PageDown, EKeys::PageDown},
	};
	const bool bLetterOrDigit =
		(Event.key() >= Qt::Key_A && Event.key() <= Qt::Key_Z) || (Event.key() >= Qt::Key_0 && Event.key() <= Qt::Key_9);
	if (bLetterOrDigit)
	{
		const TCHAR Name[] = {static_cast<TCHAR>(Event.key()), 0};
		return FKey(Name);
	}
	return Keys.value(Event.key());
}

FString InputTranslation::ToText(const QKeyEvent& Event)
{
	const QString Text = Event.text();
	const bool bWrites = std::all_of(Text.begin(), Text.end(), [](QChar Unit) { return Unit.isPrint() || Unit.isSurrogate(); });
	// With both, Control and Alt are the third level of many keyboards.
	const bool bControl = Event.modifiers().testFlag(Qt::ControlModifier);
	const bool bAlt = Event.modifiers().testFlag(Qt::AltModifier);
	return bWrites && bControl == bAlt ? ToFString(Text) : FString();
}

FTextCompositionEvent InputTranslation::ToComposition(const QInputMethodEvent& Event)
{
	FTextCompositionEvent Composition;
	Composition.Composition = ToFString(Event.preeditString());
	Composition.CaretInComposition = Composition.Composition.Len();
	Composition.Commit = ToFString(Event.commitString());
	Composition.ReplaceFrom = Event.replacementStart();
	Composition.ReplaceLength = Event.replacementLength();
	for (const QInputMethodEvent::Attribute& Attribute : Event.attributes())
	{
		if (Attribute.type == QInputMethodEvent::Cursor)
		{
			Composition.CaretInComposition = FMath::Clamp(Attribute.start, 0, Composition.Composition.Len());
		}
	}
	return Composition;
}
