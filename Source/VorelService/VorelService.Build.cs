// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

using UnrealBuildTool;

// Plain C++ and its own libraries: the service talks to nobody but through its port.
public class VorelService : ModuleRules
{
	public VorelService(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.NoPCHs;
		bEnableExceptions = true;
		bUseRTTI = true;

		PrivateDependencyModuleNames.AddRange(new string[] { "Core", "VorelCore" });
	}
}
