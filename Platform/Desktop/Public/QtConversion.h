// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

#include <QString>

inline QString ToQString(FStringView Text)
{
	return QString::fromUtf16(Text.GetData(), Text.Len());
}

inline FString ToFString(QStringView Text)
{
	return FString(static_cast<int32>(Text.size()), Text.utf16());
}
