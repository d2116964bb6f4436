// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Programs/ProgramRun.h"
#include "Support/TempFolder.h"

#include <QProcess>
#include <csignal>
#include <httplib.h>

// The program as a process that serves, from the folder "data".
class FRunningService
{
public:
	FRunningService(const FTempFolder& Folder, const QStringList& Options = {});
	~FRunningService() { Process.kill(), Process.waitForFinished(); }

	httplib::Result Get(const char* Path) { return httplib::Client(Address).Get(Path); }

	// The exit status.
	int Stop(int Signal);

	std::string Address;
	// What it wrote to stderr, once it has stopped.
	std::string Errors;

private:
	QProcess Process;
};
