// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include <array>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>

namespace
{
struct FOutcome
{
	std::string Output;
	int ExitStatus;
};

// Runs a shell command in which the program is called $P. The output holds what it wrote to stdout and stderr.
FOutcome RunShell(const std::string& Command)
{
	const auto Program = std::filesystem::read_symlink("/proc/self/exe").parent_path() / "vorel-markup";
	FILE* Pipe = ::popen(("P='" + Program.string() + "'; exec 2>&1; " + Command).c_str(), "r");
	FOutcome Outcome;
	std::array<char, 4096> Buffer;
	for (size_t Count; (Count = std::fread(Buffer.data(), 1, Buffer.size(), Pipe)) > 0;)
	{
		Outcome.Output.append(Buffer.data(), Count);
	}
	Outcome.ExitStatus = WEXITSTATUS(::pclose(Pipe));
	return Outcome;
}

void ExpectOutcome(const std::string& Command, const std::string& Output, int ExitStatus)
{
	const FOutcome Outcome = RunShell(Command);
	EXPECT_EQ(Outcome.Output, Output) << Command;
	EXPECT_EQ(Outcome.ExitStatus, ExitStatus) << Command;
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
	EXPECT_EQ(RunShell("$P --help").Output.find("Usage: vorel-markup"), 0u);
	EXPECT_EQ(RunShell("$P --help").ExitStatus, 0);
	EXPECT_EQ(RunShell("$P --version").Output.find("vorel-markup "), 0u);
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
