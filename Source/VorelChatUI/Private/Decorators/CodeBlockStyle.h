// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateStyle.h"

// The colors of highlighted code.
class VORELCHATUI_API FCodeBlockStyle final : public FSlateStyleSet
{
public:
	FCodeBlockStyle();
	~FCodeBlockStyle() override;

	static const ISlateStyle& Get();
	static void Initialize();
	static void Shutdown();

	const FName& GetStyleSetName() const override;

private:
	static const FName StyleSetName;
	static FCodeBlockStyle* Instance;
};
