// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class SWidget;

// What a widget does in Construct, split into named steps. Each widget calls those that it uses, in its own order, and puts the result of
// ConstructInterface into its ChildSlot. Nothing calls UnregisterEvents: delegates are bound weakly, and skip a widget that has gone.
class VORELCHATUI_API ConstructableUI
{
public:
	virtual ~ConstructableUI() = default;

	virtual void Initialize() {}
	virtual TSharedRef<SWidget> ConstructInterface();
	virtual void RegisterEvents() {}
	virtual void UnregisterEvents() {}
};
