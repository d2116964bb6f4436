// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

using System.IO;
using UnrealBuildTool;

public class VorelChatUI : ModuleRules
{
	public VorelChatUI(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PrivateIncludePaths.Add(Path.Combine(ModuleDirectory, "Private", "Framework", "Contract"));

		// Where the notice of a newer version leads, whatever service is used.
		PrivateDefinitions.Add("VOREL_WEB_URL=\"https://vorel.example\"");

		PublicDependencyModuleNames.AddRange(new string[] { "Core" });
		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"ApplicationCore",
			"CoreUObject",
			"Engine",
			"InputCore",
			"Projects",
			"Slate",
			"SlateCore",
			"ToolMenus",
			"UnrealEd",
			"VorelClient",
			"VorelCore",
			"VorelMarkdown"
		});
	}
}
