// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Modules/ModuleManager.h"
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
} // namespace

IMPLEMENT_MODULE(FTestModule1, TestModule1)
static FModuleInitializerEntry TestModule2Entry(TEXT("TestModule2"), []() -> IModuleInterface* { return new TTestModule<2>(); });

TEST(ModuleTest, ShutsDownInReverseOrderAndStartsAgainAfterUnloading)
{
	FModuleManager& Manager = FModuleManager::Get();
	Manager.LoadModule("TestModule2");
	Manager.LoadModule("TestModule1");
	Manager.UnloadModulesAtShutdown();
	EXPECT_FALSE(Manager.UnloadModule("TestModule1"));
	Manager.LoadModule("TestModule1");
	EXPECT_TRUE(Manager.UnloadModule("TestModule1"));
	EXPECT_TEXT(Events, TEXT("+2 +1 -1 ~1 -2 ~2 +1 -1 ~1 "));
	EXPECT_DEATH(Manager.LoadModuleChecked("NoSuchModule"), "Fatal: Module 'NoSuchModule' could not be loaded");
}
