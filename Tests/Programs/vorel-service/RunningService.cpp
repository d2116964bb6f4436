// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Programs/vorel-service/RunningService.h"

#include "QtConversion.h"

#include <gtest/gtest.h>

FRunningService::FRunningService(const FTempFolder& Folder, const QStringList& Options)
{
	const std::string Start = "vorel-service: listening at ";
	Process.setWorkingDirectory(ToQString(Folder.GetPath()));
	Process.start(FProgramRun::FindProgram(QStringLiteral("vorel-service")),
		QStringList{QStringLiteral("--listen"), QStringLiteral("127.0.0.1:0"), QStringLiteral("--data-dir"), QStringLiteral("data")} +
			Options);
	while (!Process.canReadLine() && Process.waitForReadyRead())
	{
	}
	const std::string Line = Process.readLine().trimmed().toStdString();
	EXPECT_EQ(Line.find(Start), 0u) << Line << Process.readAllStandardError().toStdString();
	Address = Line.size() > Start.size() ? Line.substr(Start.size()) : "http://127.0.0.1:1";
}

int FRunningService::Stop(int Signal)
{
	::kill(static_cast<pid_t>(Process.processId()), Signal);
	EXPECT_TRUE(Process.waitForFinished());
	Errors = Process.readAllStandardError().toStdString();
	return Process.exitStatus() == QProcess::NormalExit ? Process.exitCode() : -1;
}
