// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Editor.h"
#include "UObject/Package.h"

UEditorEngine* GEditor = nullptr;

void UEditorEngine::Startup()
{
	check(GEditor == nullptr);
	GEditor = NewObject<UEditorEngine>();
	GEditor->AddToRoot();
}

void UEditorEngine::Shutdown()
{
	check(GEditor != nullptr);
	GEditor->RemoveFromRoot();
	GEditor->MarkAsGarbage();
	GEditor = nullptr;
}
