// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/DriverKeys.h"

#include "Support/Printers.h"

#include <gtest/gtest.h>

namespace
{
FKey FindKey(const FString& Name)
{
	if (Name.Len() == 1)
	{
		return FKey(*Name.ToUpper());
	}
	static const FKey NamedKeys[] = {EKeys::BackSpace, EKeys::Delete, EKeys::Insert, EKeys::Enter, EKeys::Escape, EKeys::SpaceBar,
		EKeys::Tab, EKeys::Left, EKeys::Right, EKeys::Up, EKeys::Down, EKeys::Home, EKeys::End, EKeys::PageUp, EKeys::PageDown};
	for (const FKey& Key : NamedKeys)
	{
		if (Key.ToString() == Name)
		{
			return Key;
		}
	}
	ADD_FAILURE() << "There is no key \"" << Name << "\"";
	return FKey();
}
} // namespace

FKeyEvent ParseKeyEvent(const FString& KeyWithModifiers)
{
	FString Name = KeyWithModifiers;
	bool bShift = false;
	bool bControl = false;
	bool bAlt = false;
	for (bool bFound = true; bFound;)
	{
		const bool bShiftHere = Name.RemoveFromStart(TEXT("Shift+"));
		const bool bControlHere = Name.RemoveFromStart(TEXT("Ctrl+"));
		const bool bAltHere = Name.RemoveFromStart(TEXT("Alt+"));
		bFound = bShiftHere || bControlHere || bAltHere;
		bShift |= bShiftHere;
		bControl |= bControlHere;
		bAlt |= bAltHere;
	}
	return FKeyEvent(FindKey(Name), FModifierKeysState(bShift, bControl, bAlt));
}
