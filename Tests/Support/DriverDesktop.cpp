// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/DriverDesktop.h"

#include "Fonts/DesktopTextShaper.h"
#include "HAL/PlatformHooks.h"
#include "Support/EvenTextShaper.h"

FDriverDesktop::FDriverDesktop(EDriverFonts Fonts)
{
	if (Fonts == EDriverFonts::Real)
	{
		Shaper = MakeDesktopTextShaper();
	}
	else
	{
		Shaper = MakeUnique<FEvenTextShaper>();
	}
	FPlatformHooks::Get().LaunchURL = [this](const FString& Url, FString&)
	{
		LaunchedURLs.Add(Url);
		return true;
	};
	FPlatformHooks::Get().ClipboardCopy = [this](const FString& Text)
	{
		SetClipboardText(Text);
	};
}

FDriverDesktop::~FDriverDesktop()
{
	FPlatformHooks::Get() = FPlatformHooks();
}

void FDriverDesktop::SetTextInputArea(bool bEnabled, const FSlateRect& CaretRect)
{
	TextInputArea = bEnabled ? TOptional<FSlateRect>(CaretRect) : TOptional<FSlateRect>();
}
