// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "PasswordInput.h"

#include <csignal>
#include <cstdio>
#include <termios.h>
#include <unistd.h>

namespace
{
constexpr size_t LongestLine = 4096;

// While it lives the terminal does not show what is typed. A signal that would end the program interrupts the reading instead, since the
// terminal has to be put right first.
class FSilentTerminal
{
public:
	FSilentTerminal()
	{
		struct sigaction Interrupting = {};
		Interrupting.sa_handler = [](int) {
		};
		::sigaction(SIGINT, &Interrupting, &OldInterrupt);
		::sigaction(SIGTERM, &Interrupting, &OldTerminate);
		::tcgetattr(STDIN_FILENO, &OldModes);
		termios Modes = OldModes;
		Modes.c_lflag &= ~static_cast<tcflag_t>(ECHO);
		::tcsetattr(STDIN_FILENO, TCSAFLUSH, &Modes);
	}

	~FSilentTerminal()
	{
		::tcsetattr(STDIN_FILENO, TCSAFLUSH, &OldModes);
		::sigaction(SIGINT, &OldInterrupt, nullptr);
		::sigaction(SIGTERM, &OldTerminate, nullptr);
	}

	FSilentTerminal(const FSilentTerminal&) = delete;
	FSilentTerminal& operator=(const FSilentTerminal&) = delete;

private:
	termios OldModes;
	struct sigaction OldInterrupt;
	struct sigaction OldTerminate;
};

// Unset at the end of the input, at a signal, and for a line that is too long.
TOptional<std::string> ReadLine()
{
	std::string Line;
	char Character = 0;
	while (Line.size() < LongestLine && ::read(STDIN_FILENO, &Character, 1) == 1)
	{
		if (Character == '\n')
		{
			return Line;
		}
		Line += Character;
	}
	const bool bUnfinished = !Line.empty() && Line.size() < LongestLine && !::isatty(STDIN_FILENO);
	return bUnfinished ? TOptional<std::string>(Line) : NullOpt;
}

TOptional<std::string> AskOnce(const char* Prompt)
{
	std::fputs(Prompt, stderr);
	const TOptional<std::string> Line = ReadLine();
	std::fputs("\n", stderr);
	return Line;
}

TOptional<std::string> AskTwice(FString& OutError)
{
	const FSilentTerminal Silent;
	const TOptional<std::string> First = AskOnce("Password: ");
	const TOptional<std::string> Second = First ? AskOnce("The same again: ") : NullOpt;
	if (First && Second && *First != *Second)
	{
		OutError = TEXT("the two passwords are not the same");
		return NullOpt;
	}
	OutError = TEXT("no password was given");
	return Second;
}
} // namespace

TOptional<std::string> AskForPassword(FString& OutError)
{
	if (::isatty(STDIN_FILENO))
	{
		return AskTwice(OutError);
	}
	OutError = FString::Printf(TEXT("standard input has no password: one line of less than %d bytes"), static_cast<int32>(LongestLine));
	return ReadLine();
}
