// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Decorators/CodeBlockStyle.h"
#include "DesktopApplication.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Styling/StyleSheets/VorelMarkdownStyle.h"

#include <QApplication>
#include <benchmark/benchmark.h>

int main(int ArgC, char** ArgV)
{
	benchmark::Initialize(&ArgC, ArgV);
	if (benchmark::ReportUnrecognizedArguments(ArgC, ArgV))
	{
		return 2;
	}
	qputenv("QT_QPA_PLATFORM", "offscreen");
	QApplication Application(ArgC, ArgV);
	FDesktopApplication::Create(EBrowserMode::Record);
	FVorelAIStyle::Initialize();
	FVorelMarkdownStyle::Initialize();
	FCodeBlockStyle::Initialize();
	benchmark::RunSpecifiedBenchmarks();
	FDesktopApplication::Shutdown();
	return 0;
}
