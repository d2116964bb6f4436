// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "ToolMenuSection.h"
#include "UObject/Object.h"

// A menu, named by its path: "LevelEditor.MainMenu.Tools".
class UToolMenu : public UObject
{
public:
	FName MenuName;
	TArray<FToolMenuSection> Sections;

	// The reference holds until the next section is added.
	FToolMenuSection& FindOrAddSection(const FName SectionName);
};
