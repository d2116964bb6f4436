// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Input/Events.h"

class QInputMethodEvent;
class QKeyEvent;

/** From the desktop's input to the application's. */
namespace InputTranslation
{
FModifierKeysState ToModifiers(Qt::KeyboardModifiers Modifiers);

/** Invalid for a button that widgets do not know. */
FKey ToMouseButton(Qt::MouseButton Button);

/** Invalid for a key that widgets do not know. */
FKey ToKey(const QKeyEvent& Event);

/** What the key writes; empty for keys that command. */
FString ToText(const QKeyEvent& Event);

FTextCompositionEvent ToComposition(const QInputMethodEvent& Event);
} // namespace InputTranslation
