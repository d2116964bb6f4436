// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

// Announces a module of this program by a static object. Nothing of the module runs until it is loaded.
class FModuleInitializerEntry
{
public:
	using FInitializerFunction = IModuleInterface* (*)();

	FModuleInitializerEntry(const TCHAR* InName, FInitializerFunction InFunction);
	~FModuleInitializerEntry();
	FModuleInitializerEntry(const FModuleInitializerEntry&) = delete;
	FModuleInitializerEntry& operator=(const FModuleInitializerEntry&) = delete;

	// Null where no module of this name was announced.
	static FInitializerFunction FindModule(const FName& Name);

private:
	const TCHAR* Name;
	FInitializerFunction Function;
	FModuleInitializerEntry* Next;
};

class FModuleManager
{
public:
	static FModuleManager& Get();

	// Starts the module unless it is loaded. Null where this program has no module of this name.
	IModuleInterface* LoadModule(FName InModuleName);
	// Stops with a message where the module can't be loaded.
	IModuleInterface& LoadModuleChecked(FName InModuleName);
	template <typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(FName InModuleName)
	{
		return static_cast<TModuleInterface&>(Get().LoadModuleChecked(InModuleName));
	}

	bool IsModuleLoaded(FName InModuleName) const { return GetModule(InModuleName) != nullptr; }
	// Null unless it is loaded.
	IModuleInterface* GetModule(FName InModuleName) const;

	// False where it is not loaded.
	bool UnloadModule(FName InModuleName);
	// In the reverse order of loading.
	void UnloadModulesAtShutdown();

private:
	struct FModuleInfo
	{
		FName Name;
		TUniquePtr<IModuleInterface> Module;
	};

	void Unload(int32 Index);

	// In the order of loading.
	TArray<FModuleInfo> Modules;
};

#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName)                                                                                      \
	extern "C" [[gnu::weak]] void ThisIsAnUnrealEngineModule()                                                                             \
	{                                                                                                                                      \
	}                                                                                                                                      \
	static FModuleInitializerEntry ModuleName##InitializerEntry(                                                                           \
		TEXT(#ModuleName), []() -> IModuleInterface* { return new ModuleImplClass(); });
