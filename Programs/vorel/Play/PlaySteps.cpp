// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlaySteps.h"

#include "Play/PlayActions.h"
#include "Play/PlayArguments.h"
#include "Play/PlayBrowser.h"
#include "Play/PlayExpectations.h"
#include "Play/PlayFiles.h"

namespace
{
FPlayStep ParseOpen(FPlayArguments& Arguments)
{
	return PlayActions::Open(Arguments.TakeText(TEXT("the label of a menu entry")));
}

FPlayStep ParseLogin(FPlayArguments& Arguments)
{
	const FString Name = Arguments.TakeText(TEXT("a name"));
	return PlayBrowser::Login(Name, Arguments.IsAtEnd() ? FString() : Arguments.TakeText(TEXT("a password")));
}

FPlayStep ParseBrowse(FPlayArguments& Arguments)
{
	return PlayBrowser::Press(Arguments.TakeText(TEXT("the caption of a button")));
}

FPlayStep ParseFocus(FPlayArguments& Arguments)
{
	return PlayActions::Focus(Arguments.TakeText(TEXT("a hint or text")));
}

FPlayStep ParseType(FPlayArguments& Arguments)
{
	return PlayActions::Type(Arguments.TakeText(TEXT("a text")));
}

FPlayStep ParsePress(FPlayArguments& Arguments)
{
	return PlayActions::Press(Arguments.TakeKey());
}

FPlayStep ParseClick(FPlayArguments& Arguments)
{
	const FString Text = Arguments.TakeText(TEXT("a text"));
	return PlayActions::Click(Text, Arguments.TakeCount());
}

FPlayStep ParseHover(FPlayArguments& Arguments)
{
	const FString Text = Arguments.TakeText(TEXT("a text"));
	return PlayActions::Hover(Text, Arguments.TakeCount());
}

FPlayStep ParseWheel(FPlayArguments& Arguments)
{
	const FString Text = Arguments.TakeText(TEXT("a text"));
	return PlayActions::Wheel(Text, Arguments.TakeNotches());
}

constexpr double DefaultPatience = 10.0;

FPlayStep ParseWait(FPlayArguments& Arguments)
{
	if (Arguments.SkipWord(TEXT("idle")))
	{
		return PlayExpectations::WaitIdle(Arguments.TakeSeconds(DefaultPatience));
	}
	const bool bShown = !Arguments.SkipWord(TEXT("no"));
	if (!Arguments.SkipWord(TEXT("text")))
	{
		Arguments.Fail(TEXT("one waits for: idle, text, no text"));
	}
	const FString Text = Arguments.TakeText(TEXT("a text"));
	return PlayExpectations::WaitText(Text, bShown, Arguments.TakeSeconds(DefaultPatience));
}

FPlayStep ParseExpect(FPlayArguments& Arguments)
{
	const bool bShown = !Arguments.SkipWord(TEXT("no"));
	if (!Arguments.SkipWord(TEXT("text")))
	{
		Arguments.Fail(TEXT("one expects: text, no text"));
	}
	return PlayExpectations::ExpectText(Arguments.TakeText(TEXT("a text")), bShown);
}

FPlayStep ParseScreenshot(FPlayArguments& Arguments)
{
	const bool bWindow = Arguments.SkipWord(TEXT("window"));
	const FString File = Arguments.TakeText(TEXT("a file"));
	return bWindow ? PlayFiles::ScreenshotWindow(File) : PlayFiles::Screenshot(File);
}

FPlayStep ParseTree(FPlayArguments& Arguments)
{
	return PlayFiles::Tree(Arguments.TakeText(TEXT("a file")));
}

FPlayStep ParseClipboard(FPlayArguments& Arguments)
{
	return PlayFiles::Clipboard(Arguments.TakeText(TEXT("a file")));
}

FPlayStep ParseSent(FPlayArguments& Arguments)
{
	if (!Arguments.SkipWord(TEXT("to")) || !Arguments.SkipWord(TEXT("browser")))
	{
		Arguments.Fail(TEXT("this command is called: sent to browser"));
	}
	return PlayFiles::SentToBrowser(Arguments.TakeText(TEXT("a file")));
}

FPlayStep ParseResize(FPlayArguments& Arguments)
{
	return PlayActions::Resize(Arguments.TakeSize());
}

FPlayStep ParseSleep(FPlayArguments& Arguments)
{
	return PlayActions::Sleep(Arguments.TakeSeconds());
}

struct FPlayCommand
{
	const TCHAR* Name;
	FPlayStep (*Parse)(FPlayArguments& Arguments);
};

const FPlayCommand Commands[] = {
	{TEXT("open"), &ParseOpen},
	{TEXT("login"), &ParseLogin},
	{TEXT("browse"), &ParseBrowse},
	{TEXT("focus"), &ParseFocus},
	{TEXT("type"), &ParseType},
	{TEXT("press"), &ParsePress},
	{TEXT("click"), &ParseClick},
	{TEXT("hover"), &ParseHover},
	{TEXT("wheel"), &ParseWheel},
	{TEXT("wait"), &ParseWait},
	{TEXT("expect"), &ParseExpect},
	{TEXT("screenshot"), &ParseScreenshot},
	{TEXT("tree"), &ParseTree},
	{TEXT("clipboard"), &ParseClipboard},
	{TEXT("sent"), &ParseSent},
	{TEXT("resize"), &ParseResize},
	{TEXT("sleep"), &ParseSleep},
};
} // namespace

FPlayStep ParsePlayStep(FPlayArguments& Arguments)
{
	const FString Name = Arguments.TakeWord();
	for (const FPlayCommand& Command : Commands)
	{
		if (Name.Equals(Command.Name))
		{
			return Command.Parse(Arguments);
		}
	}
	Arguments.Fail(Name.IsEmpty() ? FString(TEXT("a line begins with a command")) : FString::Printf(TEXT("there is no command %s"), *Name));
	return FPlayStep();
}
