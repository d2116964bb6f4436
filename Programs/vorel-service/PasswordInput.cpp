// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "PasswordInput.h"

#include <csignal>
#include <cstdio>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace
{
constexpr size_t LongestLine = 4096;

// While it lives the terminal does not show what is typed. A signal that would end the program ends the waiting for input instead, since
// the terminal has to be put right first.
class FSilentTerminal
{
public:
	FSilentTerminal()
	{
		sigset_t Ending;
		::sigemptyset(&Ending);
		::sigaddset(&Ending, SIGINT);
		::sigaddset(&Ending, SIGTERM);
		::sigprocmask(SIG_BLOCK, &Ending, &OldMask);
		struct sigaction Interrupting = {};
		Interrupting.sa_handler = [](int) {
		};
		::sigaction(SIGINT, &Interrupting, &OldInterrupt);
		::sigaction(SIGTERM, &Interrupting, &OldTerminate);
		::tcgetattr(STDIN_FILENO, &OldModes);
		termios Modes = OldModes;
		Modes.c_lflag &= ~static_cast<tcflag_t>(ECHO);
		// Nor does an interruption throw away what was written last.
		Modes.c_lflag |= NOFLSH;
		::tcsetattr(STDIN_FILENO, TCSAFLUSH, &Modes);
	}

	~FSilentTerminal()
	{
		::tcsetattr(STDIN_FILENO, TCSAFLUSH, &OldModes);
		::sigaction(SIGINT, &OldInterrupt, nullptr);
		::sigaction(SIGTERM, &OldTerminate, nullptr);
		::sigprocmask(SIG_SETMASK, &OldMask, nullptr);
	}

	// False where such a signal comes, or came since the last time.
	bool WaitForInput() const
	{
		pollfd Input{STDIN_FILENO, POLLIN, 0};
		return ::ppoll(&Input, 1, nullptr, &OldMask) > 0;
	}

	FSilentTerminal(const FSilentTerminal&) = delete;
	FSilentTerminal& operator=(const FSilentTerminal&) = delete;

private:
	sigset_t OldMask;
	termios OldModes;
	struct sigaction OldInterrupt;
	struct sigaction OldTerminate;
};

// Unset at the end of the input, at a signal, and for a line that is too long. Terminal: null where the input is none.
TOptional<std::string> ReadLine(const FSilentTerminal* Terminal)
{
	std::string Line;
	char Character = 0;
	while (Line.size() < LongestLine && (!Terminal || Terminal->WaitForInput()) && ::read(STDIN_FILENO, &Character, 1) == 1)
	{
		if (Character == '\n')
		{
			return Line;
		}
		Line += Character;
	}
	const bool bUnfinished = !Line.empty() && Line.size() < LongestLine && !Terminal;
	return bUnfinished ? TOptional<std::string>(Line) : NullOpt;
}

TOptional<std::string> AskOnce(const FSilentTerminal& Terminal, const char* Prompt)
{
	std::fputs(Prompt, stderr);
	const TOptional<std::string> Line = ReadLine(&Terminal);
	std::fputs("\n", stderr);
	return Line;
}

TOptional<std::string> AskTwice(FString& OutError)
{
	const FSilentTerminal Silent;
	const TOptional<std::string> First = AskOnce(Silent, "Password: ");
	const TOptional<std::string> Second = First ? AskOnce(Silent, "The same again: ") : NullOpt;
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
	return ReadLine(nullptr);
}
