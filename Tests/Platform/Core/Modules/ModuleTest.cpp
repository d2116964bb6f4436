// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Modules/ModuleManager.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

namespace
{
FString Events;

template <int32 Number>
class TTestModule : public IModuleInterface
{
public:
	~TTestModule() override { Events += FString::Printf(TEXT("~%d "), Number); }
	void StartupModule() override
	{
		Events += FString::Printf(TEXT("+%d "), Number);
		// A module may ask for itself while it starts.
		EXPECT_EQ(&FModuleManager::LoadModuleChecked<TTestModule>(*FString::Printf(TEXT("TestModule%d"), Number)), this);
	}
	void ShutdownModule() override { Events += FString::Printf(TEXT("-%d "), Number); }
};

using FTestModule1 = TTestModule<1>;
using FTestModule2 = TTestModule<2>;
} // namespace

IMPLEMENT_MODULE(FTestModule1, TestModule1)
static FModuleInitializerEntry TestModule2Entry(TEXT("TestModule2"), []() -> IModuleInterface* { return new FTestModule2(); });

class ModuleTest : public testing::Test
{
protected:
	ModuleTest() { Events.Reset(); }
	~ModuleTest() override { FModuleManager::Get().UnloadModulesAtShutdown(); }
};

TEST_F(ModuleTest, ShutsDownInReverseOrderAndStartsAgainAfterUnloading)
{
	FModuleManager::Get().LoadModule("TestModule2");
	FModuleManager::Get().LoadModule("TestModule1");
	FModuleManager::Get().UnloadModulesAtShutdown();
	EXPECT_FALSE(FModuleManager::Get().UnloadModule("TestModule1"));
	FModuleManager::Get().LoadModule("TestModule1");
	EXPECT_TRUE(FModuleManager::Get().UnloadModule("TestModule1"));
	EXPECT_TEXT(Events, TEXT("+2 +1 -1 ~1 -2 ~2 +1 -1 ~1 "));
}

TEST(ModuleDeathTest, StopsWhereAModuleCannotBeLoaded)
{
	EXPECT_DEATH(FModuleManager::Get().LoadModuleChecked("NoSuchModule"), "Fatal: Module 'NoSuchModule' could not be loaded");
}
