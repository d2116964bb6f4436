// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class SWidget;

/** Nothing, where a widget must stand. One object serves all places, so it knows no parent. */
class SNullWidget
{
public:
	static TSharedRef<SWidget> NullWidget;
};
