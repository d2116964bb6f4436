// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

using UnrealBuildTool;

public class VorelCore : ModuleRules
{
	public VorelCore(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		// The client contract is owned by the module that needs it.
		PublicIncludePaths.Add("VorelChatUI/Private/Framework/Contract");

		PublicDependencyModuleNames.AddRange(new string[] { "Core", "CoreUObject" });
	}
}
