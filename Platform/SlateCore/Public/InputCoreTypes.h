// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

/** A key of the keyboard or a button of the mouse, by name. */
struct FKey
{
	FKey() = default;
	explicit FKey(const FName& InName)
		: KeyName(InName)
	{
	}
	explicit FKey(const TCHAR* InName)
		: KeyName(InName)
	{
	}

	bool IsValid() const { return KeyName != FName(); }
	FString ToString() const { return KeyName.ToString(); }
	bool operator==(const FKey& Other) const { return KeyName == Other.KeyName; }
	friend uint32 GetTypeHash(const FKey& Key) { return GetTypeHash(Key.KeyName); }

private:
	FName KeyName;
};

/** Letters and digits have their own name, as FKey(TEXT("A")); the others are those that the platform acts on. */
struct EKeys
{
	static const FKey Invalid;

	static const FKey LeftMouseButton;
	static const FKey MiddleMouseButton;
	static const FKey RightMouseButton;

	static const FKey BackSpace;
	static const FKey Delete;
	static const FKey Insert;
	static const FKey Enter;
	static const FKey Escape;
	static const FKey SpaceBar;
	static const FKey Tab;

	static const FKey Left;
	static const FKey Right;
	static const FKey Up;
	static const FKey Down;
	static const FKey Home;
	static const FKey End;
	static const FKey PageUp;
	static const FKey PageDown;

	static const FKey A;
	static const FKey C;
	static const FKey V;
	static const FKey X;
	static const FKey Y;
	static const FKey Z;
};
