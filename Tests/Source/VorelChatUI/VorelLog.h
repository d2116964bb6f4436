// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Support/LogCapture.h"
#include <string>

inline std::string ToUtf8(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*Text));
}

// What the module has logged since the last time, as "Warning: text" lines.
inline std::string TakeLog(FLogCapture& Log)
{
	std::string Lines;
	for (const FLogCapture::FMessage& Message : Log.GetMessages())
	{
		if (Message.Category == "LogVorel")
		{
			Lines += ToUtf8(FString::Printf(TEXT("%s: %s\n"), ToString(Message.Verbosity), *Message.Text));
		}
	}
	Log.Clear();
	return Lines;
}
