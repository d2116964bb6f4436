// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QCoreApplication>

#include "RenewingProgram.h"
#include "StreamingProgram.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string_view>

// The client runs on the application's event loop.
int main(int ArgumentCount, char** Arguments)
{
	testing::InitGoogleTest(&ArgumentCount, Arguments);
	const QCoreApplication Application(ArgumentCount, Arguments);
	if (ArgumentCount == 4 && std::string_view(Arguments[1]) == FStreamingProgram::Switch)
	{
		return FStreamingProgram::Run(FString(Arguments[2]), std::atoi(Arguments[3]));
	}
	if (ArgumentCount == 4 && std::string_view(Arguments[1]) == FRenewingProgram::Switch)
	{
		return FRenewingProgram::Run(FString(Arguments[2]), FString(Arguments[3]));
	}
	return RUN_ALL_TESTS();
}
