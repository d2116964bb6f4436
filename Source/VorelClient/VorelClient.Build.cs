// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

using UnrealBuildTool;

public class VorelClient : ModuleRules
{
	public VorelClient(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;
		bEnableExceptions = true;

		// The client contract is owned by the module that needs it.
		PublicIncludePaths.Add("VorelChatUI/Private/Framework/Contract");

		PublicDependencyModuleNames.AddRange(new string[] { "Core", "CoreUObject" });
		PrivateDependencyModuleNames.AddRange(new string[] { "Projects", "VorelCore", "VorelService" });
	}
}
