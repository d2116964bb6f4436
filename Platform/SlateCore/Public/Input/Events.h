// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"
#include "Types/SlateEnums.h"

/** Which modifiers were held. */
class FModifierKeysState
{
public:
	FModifierKeysState() = default;
	FModifierKeysState(bool bInShift, bool bInControl, bool bInAlt, bool bInCommand = false)
		: bShift(bInShift)
		, bControl(bInControl)
		, bAlt(bInAlt)
		, bCommand(bInCommand)
	{
	}

	bool IsShiftDown() const { return bShift; }
	bool IsControlDown() const { return bControl; }
	bool IsAltDown() const { return bAlt; }
	bool IsCommandDown() const { return bCommand; }
	bool AnyModifiersDown() const { return bShift || bControl || bAlt || bCommand; }

private:
	bool bShift = false;
	bool bControl = false;
	bool bAlt = false;
	bool bCommand = false;
};

class FInputEvent
{
public:
	explicit FInputEvent(const FModifierKeysState& InModifiers, bool bInIsRepeat = false)
		: Modifiers(InModifiers)
		, bIsRepeat(bInIsRepeat)
	{
	}

	const FModifierKeysState& GetModifierKeys() const { return Modifiers; }
	bool IsShiftDown() const { return Modifiers.IsShiftDown(); }
	bool IsControlDown() const { return Modifiers.IsControlDown(); }
	bool IsAltDown() const { return Modifiers.IsAltDown(); }
	bool IsCommandDown() const { return Modifiers.IsCommandDown(); }
	bool IsRepeat() const { return bIsRepeat; }

private:
	FModifierKeysState Modifiers;
	bool bIsRepeat;
};

/** A key goes down or up. */
class FKeyEvent : public FInputEvent
{
public:
	explicit FKeyEvent(const FKey& InKey, const FModifierKeysState& InModifiers = FModifierKeysState(), bool bInIsRepeat = false)
		: FInputEvent(InModifiers, bInIsRepeat)
		, Key(InKey)
	{
	}

	const FKey& GetKey() const { return Key; }

private:
	FKey Key;
};

/** One UTF-16 unit was typed; a character beyond the first plane comes as two events. */
class FCharacterEvent : public FInputEvent
{
public:
	explicit FCharacterEvent(TCHAR InCharacter, const FModifierKeysState& InModifiers = FModifierKeysState(), bool bInIsRepeat = false)
		: FInputEvent(InModifiers, bInIsRepeat)
		, Character(InCharacter)
	{
	}

	TCHAR GetCharacter() const { return Character; }

private:
	TCHAR Character;
};

/** The mouse; positions are absolute, in device pixels of the window. */
class FPointerEvent : public FInputEvent
{
public:
	/** Button is the one that went down or up, none for a move or the wheel. WheelDelta is in notches, away from the user positive. */
	FPointerEvent(const FVector2D& InPosition, const FKey& InButton, float InWheelDelta = 0.0f,
		const FModifierKeysState& InModifiers = FModifierKeysState())
		: FInputEvent(InModifiers)
		, Position(InPosition)
		, EffectingButton(InButton)
		, WheelDelta(InWheelDelta)
	{
	}

	const FVector2D& GetScreenSpacePosition() const { return Position; }
	const FKey& GetEffectingButton() const { return EffectingButton; }
	float GetWheelDelta() const { return WheelDelta; }

private:
	FVector2D Position;
	FKey EffectingButton;
	float WheelDelta;
};

class FFocusEvent
{
public:
	explicit FFocusEvent(EFocusCause InCause)
		: Cause(InCause)
	{
	}

	EFocusCause GetCause() const { return Cause; }

private:
	EFocusCause Cause;
};

/** A step of an input method: text that replaces some of what stands there, and text that is still being composed. */
struct FTextCompositionEvent
{
	/** Shown at the caret, part of no text yet; empty when the composition ends. */
	FString Composition;

	/** Within Composition, in UTF-16 units. */
	int32 CaretInComposition = 0;

	/** Becomes text. */
	FString Commit;

	/** What Commit replaces: its start relative to the caret, and its length, in UTF-16 units. */
	int32 ReplaceFrom = 0;
	int32 ReplaceLength = 0;
};
