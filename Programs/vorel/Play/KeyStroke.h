// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

#include <QString>
#include <Qt>

// One key with what is held down meanwhile.
struct FKeyStroke
{
	Qt::Key Key = Qt::Key_unknown;
	Qt::KeyboardModifiers Modifiers = Qt::NoModifier;
	// What the key writes; empty where it writes nothing.
	QString Text;

	// "Shift+Enter", "Ctrl+A", "Escape", "+". Unset for a key of another name.
	static TOptional<FKeyStroke> FromName(const FString& Name);
};
