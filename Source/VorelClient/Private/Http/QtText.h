// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QString>

#include "CoreMinimal.h"

inline FString ToFString(const QString& Text)
{
	return FString(static_cast<int32>(Text.size()), reinterpret_cast<const TCHAR*>(Text.utf16()));
}

inline QString ToQString(const FString& Text)
{
	return QString::fromUtf16(*Text, Text.Len());
}
