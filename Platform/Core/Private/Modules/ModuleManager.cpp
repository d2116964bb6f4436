// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Modules/ModuleManager.h"
#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogModuleManager, Log, All);

// A list through the entries themselves, so that it needs no static of its own to be constructed before them.
static constinit FModuleInitializerEntry* FirstEntry = nullptr;

FModuleInitializerEntry::FModuleInitializerEntry(const TCHAR* InName, FInitializerFunction InFunction)
	: Name(InName)
	, Function(InFunction)
	, Next(FirstEntry)
{
	FirstEntry = this;
}

FModuleInitializerEntry::~FModuleInitializerEntry()
{
	FModuleInitializerEntry** Link = &FirstEntry;
	while (*Link != this)
	{
		Link = &(*Link)->Next;
	}
	*Link = Next;
}

FModuleInitializerEntry::FInitializerFunction FModuleInitializerEntry::FindModule(const FName& Name)
{
	const FModuleInitializerEntry* Entry = FirstEntry;
	while (Entry && Name != Entry->Name)
	{
		Entry = Entry->Next;
	}
	return Entry ? Entry->Function : nullptr;
}

FModuleManager& FModuleManager::Get()
{
	static FModuleManager Manager;
	return Manager;
}

IModuleInterface* FModuleManager::LoadModule(FName InModuleName)
{
	if (IModuleInterface* Loaded = GetModule(InModuleName))
	{
		return Loaded;
	}
	const FModuleInitializerEntry::FInitializerFunction Initializer = FModuleInitializerEntry::FindModule(InModuleName);
	if (Initializer == nullptr)
	{
		return nullptr;
	}
	// In the list before it starts, since starting may ask for the module itself.
	IModuleInterface* Module = Initializer();
	Modules.Add({InModuleName, TUniquePtr<IModuleInterface>(Module)});
	Module->StartupModule();
	return Module;
}

IModuleInterface& FModuleManager::LoadModuleChecked(FName InModuleName)
{
	IModuleInterface* Module = LoadModule(InModuleName);
	UE_CLOG(Module == nullptr, LogModuleManager, Fatal, TEXT("Module '%s' could not be loaded: this program does not contain it"),
		*InModuleName.ToString());
	return *Module;
}

IModuleInterface* FModuleManager::GetModule(FName InModuleName) const
{
	const FModuleInfo* Info = Modules.FindByPredicate([InModuleName](const FModuleInfo& Each) { return Each.Name == InModuleName; });
	return Info ? Info->Module.Get() : nullptr;
}

bool FModuleManager::UnloadModule(FName InModuleName)
{
	const int32 Index = Modules.IndexOfByPredicate([InModuleName](const FModuleInfo& Each) { return Each.Name == InModuleName; });
	if (Index != INDEX_NONE)
	{
		Unload(Index);
	}
	return Index != INDEX_NONE;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	while (!Modules.IsEmpty())
	{
		Unload(Modules.Num() - 1);
	}
}

void FModuleManager::Unload(int32 Index)
{
	IModuleInterface* Module = Modules[Index].Module.Get();
	Module->PreUnloadCallback();
	Module->ShutdownModule();
	// Found anew, since shutting down may have loaded or unloaded others.
	const int32 CurrentIndex = Modules.IndexOfByPredicate([Module](const FModuleInfo& Each) { return Each.Module.Get() == Module; });
	const TUniquePtr<IModuleInterface> Dying = ::MoveTemp(Modules[CurrentIndex].Module);
	Modules.RemoveAt(CurrentIndex);
}
