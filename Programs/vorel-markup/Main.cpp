// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "CoreMinimal.h"
#include "MarkdownParser.h"
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <unistd.h>

namespace
{
constexpr int Success = 0;
constexpr int Failure = 1;
constexpr int WrongUsage = 2;

// Far beyond any message, and small enough that the markup of any text fits into one string.
constexpr size_t MaxInputSize = 16 * 1024 * 1024;

constexpr const char* Usage = "Usage: vorel-markup < MARKDOWN > MARKUP\n"
							  "Reads Markdown on standard input and writes the rich text markup of the message view.\n"
							  "\n"
							  "  --help     show this text\n"
							  "  --version  show the version\n";

bool ReadAll(std::string& OutText)
{
	constexpr size_t PieceSize = 65536;
	for (;;)
	{
		const size_t Size = OutText.size();
		OutText.resize(Size + PieceSize);
		const ssize_t Count = ::read(STDIN_FILENO, OutText.data() + Size, PieceSize);
		OutText.resize(Size + (Count > 0 ? static_cast<size_t>(Count) : 0));
		if (Count == 0 || OutText.size() > MaxInputSize)
		{
			return true;
		}
		if (Count < 0 && errno != EINTR)
		{
			return false;
		}
	}
}

bool WriteAll(std::string_view Text)
{
	while (!Text.empty())
	{
		const ssize_t Count = ::write(STDOUT_FILENO, Text.data(), Text.size());
		if (Count < 0 && errno != EINTR)
		{
			return false;
		}
		Text.remove_prefix(Count > 0 ? static_cast<size_t>(Count) : 0);
	}
	return true;
}

std::string Render(const std::string& Markdown)
{
	UMarkdownParser* Parser = NewObject<UMarkdownParser>();
	Parser->SetContent(FString(FUTF8ToTCHAR(Markdown.data(), static_cast<int32>(Markdown.size()))));
	Parser->Parse();
	const FTCHARToUTF8 Markup(Parser->RenderToHTML());
	return std::string(Markup.Get(), static_cast<size_t>(Markup.Length())) + "\n";
}

int Fail(const char* What, const char* Why)
{
	std::fprintf(stderr, "vorel-markup: %s: %s\n", What, Why);
	return Failure;
}

int RenderInput()
{
	std::string Markdown;
	if (!ReadAll(Markdown))
	{
		return Fail("standard input can't be read", std::strerror(errno));
	}
	if (Markdown.size() > MaxInputSize)
	{
		return Fail("standard input", "it is larger than 16 MB");
	}
	// A reader that has gone needs no message.
	std::signal(SIGPIPE, SIG_IGN);
	if (!WriteAll(Render(Markdown)))
	{
		return errno == EPIPE ? Failure : Fail("standard output can't be written", std::strerror(errno));
	}
	return Success;
}
} // namespace

int main(int ArgC, char** ArgV)
{
	if (ArgC == 1)
	{
		return RenderInput();
	}
	const std::string_view Option = ArgV[1];
	if (ArgC == 2 && Option == "--help")
	{
		return WriteAll(Usage) ? Success : Failure;
	}
	if (ArgC == 2 && Option == "--version")
	{
		return WriteAll("vorel-markup " VOREL_VERSION "\n") ? Success : Failure;
	}
	std::fprintf(stderr, "vorel-markup: it takes no argument but --help or --version, not \"%s\"\n", ArgV[ArgC == 2 ? 1 : 2]);
	return WrongUsage;
}
