// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Interfaces/IPluginManager.h"
#include "Containers/Map.h"
#include "Containers/StringConv.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "PluginDescriptor.h"

#include <filesystem>

DEFINE_LOG_CATEGORY_STATIC(LogPluginManager, Log, All);

namespace
{
class FPlugin final : public IPlugin
{
public:
	FPlugin(FString InFileName, FPluginDescriptor InDescriptor)
		: FileName(::MoveTemp(InFileName))
		, Name(FPaths::GetBaseFilename(FileName))
		, Descriptor(::MoveTemp(InDescriptor))
	{
	}

	const FString& GetName() const override { return Name; }
	FString GetBaseDir() const override { return FPaths::GetPath(FileName); }
	const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }

private:
	FString FileName;
	FString Name;
	FPluginDescriptor Descriptor;
};

TArray<FString> FindDescriptors(const FString& Folder)
{
	TArray<FString> FileNames;
	std::error_code Error;
	for (const auto& Entry : std::filesystem::directory_iterator(TCHAR_TO_UTF8(Folder), Error))
	{
		const FString FileName(Entry.path().c_str());
		if (FPaths::GetExtension(FileName) == TEXT("uplugin"))
		{
			FileNames.Add(FileName);
		}
	}
	// The order of the file system means nothing.
	FileNames.Sort();
	return FileNames;
}

class FPluginManager final : public IPluginManager
{
public:
	FPluginManager()
	{
		if (!FPaths::ProjectDir().IsEmpty())
		{
			AddPluginSearchPath(FPaths::ProjectDir());
		}
	}

	void AddPluginSearchPath(const FString& ExtraDiscoveryPath) override
	{
		for (const FString& FileName : FindDescriptors(FPaths::ConvertRelativePathToFull(ExtraDiscoveryPath)))
		{
			AddPlugin(FileName);
		}
	}

	TSharedPtr<IPlugin> FindPlugin(const FString& Name) override { return Plugins.FindRef(Name); }

	bool LoadModulesForEnabledPlugins() override
	{
		bool bLoadedAll = true;
		for (const auto& [Name, Plugin] : Plugins)
		{
			bLoadedAll &= LoadModules(*Plugin);
		}
		return bLoadedAll;
	}

private:
	void AddPlugin(const FString& FileName)
	{
		FPluginDescriptor Descriptor;
		FString Reason;
		if (!ReadPluginDescriptor(FileName, Descriptor, Reason))
		{
			UE_LOG(LogPluginManager, Error, TEXT("Plug-in descriptor %s is left out: %s"), *FileName, *Reason);
			return;
		}
		const TSharedRef<FPlugin> Plugin = MakeShared<FPlugin>(FileName, ::MoveTemp(Descriptor));
		Plugins.Add(Plugin->GetName(), Plugin);
	}

	static bool LoadModules(const IPlugin& Plugin)
	{
		bool bLoadedAll = true;
		for (const FModuleDescriptor& Module : Plugin.GetDescriptor().Modules)
		{
			const bool bLoaded = FModuleManager::Get().LoadModule(Module.Name) != nullptr;
			UE_CLOG(!bLoaded, LogPluginManager, Error, TEXT("Plug-in %s: module %s could not be loaded"), *Plugin.GetName(),
				*Module.Name.ToString());
			bLoadedAll &= bLoaded;
		}
		return bLoadedAll;
	}

	TMap<FString, TSharedPtr<IPlugin>> Plugins;
};
} // namespace

IPluginManager& IPluginManager::Get()
{
	static FPluginManager Manager;
	return Manager;
}
