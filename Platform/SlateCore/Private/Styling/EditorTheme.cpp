// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "EditorTheme.h"

FLinearColor EditorTheme::FromScreen(uint32 Digits)
{
	return FLinearColor(FColor(static_cast<uint8>(Digits >> 16), static_cast<uint8>(Digits >> 8), static_cast<uint8>(Digits)));
}
