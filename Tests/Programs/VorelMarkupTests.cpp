// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/ProgramRun.h"
#include "Support/Printers.h"

namespace
{
void ExpectOutcome(const char* Command, const char* Output, int ExitStatus)
{
	FProgramRun::ExpectShell("vorel-markup", Command, Output, ExitStatus);
}
} // namespace

TEST(VorelMarkup, ReadsMarkdownAndWritesMarkup)
{
	ExpectOutcome("printf 'a **b** \\303\\251\\n' | $P",
		"<VorelMarkdown.Paragraph>a </><VorelMarkdown.Paragraph.Strong>b</><VorelMarkdown.Paragraph> \u00e9</>\n", 0);
	ExpectOutcome("$P < /dev/null", "\n", 0);
	ExpectOutcome("printf 'a\\377' | $P", "<VorelMarkdown.Paragraph>a\ufffd</>\n", 0);
}

TEST(VorelMarkup, TellsAboutItself)
{
	ExpectOutcome("$P --help | head -1 | cut -c -19; $P --version | cut -c -13", "Usage: vorel-markup\nvorel-markup \n", 0);
}

TEST(VorelMarkup, EndsWithAMessageWhereItCantGoOn)
{
	ExpectOutcome("$P file.md", "vorel-markup: it takes no argument but --help or --version, not \"file.md\"\n", 2);
	ExpectOutcome("$P --help more", "vorel-markup: it takes no argument but --help or --version, not \"more\"\n", 2);
	ExpectOutcome("$P < /", "vorel-markup: standard input can't be read: Is a directory\n", 1);
	ExpectOutcome("head -c 20000000 /dev/zero | $P", "vorel-markup: standard input: it is larger than 16 MB\n", 1);
	ExpectOutcome("echo a | $P > /dev/full", "vorel-markup: standard output can't be written: No space left on device\n", 1);
}

TEST(VorelMarkup, AReaderThatHasGoneNeedsNoMessage)
{
	ExpectOutcome("(head -c 3000000 /dev/zero | $P; echo status $? >&2) | true", "status 1\n", 0);
}
