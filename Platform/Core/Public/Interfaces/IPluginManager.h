// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

struct FModuleDescriptor
{
	FName Name;
	FString Type;
	FString LoadingPhase;
};

// The content of a .uplugin file.
struct FPluginDescriptor
{
	FString FriendlyName;
	FString VersionName;
	FString Description;
	// In loading order.
	TArray<FModuleDescriptor> Modules;
};

class IPlugin
{
public:
	virtual ~IPlugin() = default;
	virtual const FString& GetName() const = 0;
	// The folder of the descriptor, absolute.
	virtual FString GetBaseDir() const = 0;
	virtual const FPluginDescriptor& GetDescriptor() const = 0;
};

class IPluginManager
{
public:
	virtual ~IPluginManager() = default;

	static IPluginManager& Get();

	// Reads each descriptor right in this folder. One that can't be read is logged, with what is wrong with it, and left out. The project's
	// own folder has been read already.
	virtual void AddPluginSearchPath(const FString& ExtraDiscoveryPath) = 0;

	// Null for a name that is not known.
	virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) = 0;

	// Loads the modules of every plug-in in the order of its descriptor. False if one could not be loaded, which is logged.
	virtual bool LoadModulesForEnabledPlugins() = 0;
};
