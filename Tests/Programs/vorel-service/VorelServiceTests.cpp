// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/vorel-service/RunningService.h"
#include "QtConversion.h"
#include "Support/Printers.h"

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
class VorelService : public testing::Test
{
protected:
	void ExpectOutcome(const std::string& Command, const std::string& Output, int ExitStatus)
	{
		FProgramRun::ExpectShell("vorel-service", Command, Output, ExitStatus, ToQString(Folder.GetPath()));
	}

	FTempFolder Folder;
};

// A program at a terminal, with somebody in front of it.
class FTerminal
{
public:
	explicit FTerminal(const std::string& Command)
	{
		Child = ::forkpty(&Screen, nullptr, nullptr, nullptr);
		if (Child == 0)
		{
			::_exit(::execl("/bin/sh", "sh", "-c", Command.c_str(), nullptr));
		}
	}

	// Types as soon as the screen ends with the prompt.
	void Answer(const std::string& Prompt, const std::string& Keys)
	{
		while (!Seen.ends_with(Prompt) && ReadMore())
		{
		}
		EXPECT_EQ(::write(Screen, Keys.data(), Keys.size()), static_cast<ssize_t>(Keys.size()));
	}

	int End()
	{
		while (ReadMore())
		{
		}
		int Status = -1;
		::waitpid(Child, &Status, 0);
		::close(Screen);
		return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	}

	std::string Seen;

private:
	bool ReadMore()
	{
		char Character = 0;
		const bool bRead = ::read(Screen, &Character, 1) == 1;
		Seen += bRead ? std::string(1, Character) : std::string();
		return bRead;
	}

	int Screen = -1;
	pid_t Child = -1;
};
} // namespace

TEST_F(VorelService, TellsAboutItself)
{
	ExpectOutcome("$P --help | head -1; $P --version | cut -c -14", "Usage: vorel-service [options]\nvorel-service \n", 0);
}

TEST_F(VorelService, EndsWithALineWhereItCantGoOn)
{
	const char* const Listen = "--listen needs a host and a port, like 127.0.0.1:8720 or [::1]:8720";
	const char* const Version = "--plugin-version needs a semantic version, like 1.2.3";
	const std::pair<const char*, const char*> Rows[] = {
		{"--listen 8720", Listen},
		{"--listen :8720", Listen},
		{"--listen ::1:8720", Listen},
		{"--listen [::1:8720", Listen},
		{"--listen 127.0.0.1:65536", Listen},
		{"--listen 127.0.0.1:", Listen},
		{"--public-url vorel.example", "--public-url needs an address that begins with http:// or https://"},
		{"--daily-credits -1", "--daily-credits needs a whole number from 0 to 1000000"},
		{"--plugin-version 1.2", Version},
		{"--plugin-version 01.2.3", Version},
		{"--password x", "there is no option --password, see --help"},
		{"account list", "there is no option account, see --help"},
		{"accounts", "accounts needs list, add, set-password or remove, see --help"},
		{"accounts add", "accounts add takes NAME, see --help"},
		{"accounts add ada secret", "accounts add takes NAME, see --help"},
		{"--data-dir /proc/none accounts list", "The folder for data /proc/none can't be made: No such file or directory."},
	};
	for (const auto& [Arguments, Error] : Rows)
	{
		ExpectOutcome(std::string("$P ") + Arguments, std::string("vorel-service: ") + Error + "\n", 2);
	}
}

TEST_F(VorelService, KeepsAccounts)
{
	const char* const Setup = "export XDG_DATA_HOME=$PWD/home; A=\"$P accounts\"; ";
	const std::pair<const char*, const char*> Rows[] = {
		{"$A list", ""},
		{"printf 'first secret\\n' | $A add ' Ada Lovelace'; printf 'second secret' | $A add bob; $A list", "Ada Lovelace\nbob\n"},
		{"echo another secret | $A add 'ada lovelace'", "vorel-service: There is an account of that name already.\n"},
		{"echo another secret | $A set-password 'ada lovelace'; $A list", "Ada Lovelace\nbob\n"},
		{"$A remove 'ADA LOVELACE'; $A remove 'Ada Lovelace'; $A list", "vorel-service: There is no account of that name.\nbob\n"},
		{"echo short | $A add carl", "vorel-service: The password is too short. It needs at least 8 characters.\n"},
		{"$A add carl < /dev/null", "vorel-service: standard input has no password: one line of less than 4096 bytes\n"},
		{"head -c 5000 /dev/zero | $A add carl", "vorel-service: standard input has no password: one line of less than 4096 bytes\n"},
		{"stat -c %a home/vorel-service home/vorel-service/*; cat home/vorel-service/* | grep -c secret", "700\n600\n0\n"},
	};
	for (const auto& [Command, Output] : Rows)
	{
		ExpectOutcome(std::string(Setup) + Command + "; true", Output, 0);
	}
}

TEST_F(VorelService, AsksForThePasswordWithoutShowingIt)
{
	const std::string Program = TCHAR_TO_UTF8(ToFString(FProgramRun::FindProgram(QStringLiteral("vorel-service"))));
	const auto Add = [&](const char* Second, const char* Outcome, int ExitStatus)
	{
		FTerminal Terminal(
			"cd " + std::string(TCHAR_TO_UTF8(Folder.GetPath())) + " && exec " + Program + " --data-dir data accounts add ada");
		Terminal.Answer("Password: ", "first secret\n");
		Terminal.Answer("again: ", Second);
		EXPECT_EQ(Terminal.End(), ExitStatus) << Terminal.Seen;
		EXPECT_EQ(Terminal.Seen, std::string("Password: \r\nThe same again: \r\n") + Outcome);
	};
	Add("second secret\n", "vorel-service: the two passwords are not the same\r\n", 2);
	Add("\x03", "vorel-service: no password was given\r\n", 2);
	Add("first secret\n", "", 0);
	ExpectOutcome("$P --data-dir data accounts list", "ada\n", 0);
}

TEST_F(VorelService, ServesUntilItIsTold)
{
	for (const int Signal : {SIGTERM, SIGINT})
	{
		FRunningService Service(Folder, {"--plugin-version", "7.8.9"});
		EXPECT_NE(Service.Get("/v1/version")->body.find("\"7.8.9\""), std::string::npos);
		ExpectOutcome("$P --data-dir data --listen " + Service.Address.substr(7),
			"vorel-service: The service can't listen at 127.0.0.1, port " + Service.Address.substr(17) + ". Another program may use it.\n",
			2);
		EXPECT_EQ(Service.Stop(Signal), 0);
		EXPECT_EQ(Service.Errors, "vorel-service: there are no accounts yet; add one with: vorel-service accounts add NAME\n");
	}
	FRunningService Open(Folder, {"--listen", "0.0.0.0:0", "--public-url", "http://vorel.example/"});
	int Port = 0;
	EXPECT_EQ(std::sscanf(Open.Address.c_str(), "0.0.0.0:%d", &Port), 1) << Open.Address;
	EXPECT_EQ(Open.Address, "0.0.0.0:" + std::to_string(std::max(Port, 1)) + " for http://vorel.example");
	EXPECT_EQ(Open.Stop(SIGTERM), 0);
	EXPECT_EQ(Open.Errors.find("vorel-service: warning: passwords and tokens cross the network as plain text"), 0u) << Open.Errors;
}
