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
	TArray<FString> Words;
	KeyWithModifiers.ParseIntoArray(Words, TEXT("+"));
	const FString Name = Words.Pop();
	const auto TakeModifier = [&Words](const TCHAR* Modifier)
	{
		return Words.Remove(Modifier) > 0;
	};
	const FModifierKeysState Modifiers(TakeModifier(TEXT("Shift")), TakeModifier(TEXT("Ctrl")), TakeModifier(TEXT("Alt")));
	EXPECT_TRUE(Words.IsEmpty()) << KeyWithModifiers;
	return FKeyEvent(FindKey(Name), Modifiers);
}
