// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateTypes.h"

// The colors, fonts, brushes and control styles of the module, under the prefix "VorelAI.". The colors are a snapshot of the editor's theme
// as it stood when the set was built.
class VORELCHATUI_API FVorelAIStyle final : public FSlateStyleSet
{
public:
	FVorelAIStyle();
	~FVorelAIStyle() override;

	// Creates the set on first use, without registering it.
	static const ISlateStyle& Get();

	static void Initialize();
	static void Shutdown();

	const FName& GetStyleSetName() const override;

private:
	static void Create();

	// Later steps read back what earlier ones have set: the constructor's order is part of the design.
	void SetColors();
	void SetLogos();
	void SetBackgrounds();
	void SetRoundedBackgrounds();
	void SetEngineIcons();
	void SetFileIcons();
	void SetTypography();
	void SetConsoleText();
	void SetButtons();
	void SetToggle();
	void SetComboBox();
	void SetHyperlinks();

	void CopyColor(const FName& Name, const FName& EngineName);
	void CopyBrush(const FName& Name, const FName& EngineName);
	void LoadIcon(const FString& Directory, const FString& FileName, const FName& Name);
	FTextBlockStyle SetText(const FName& Name, const FTextBlockStyle& Base, const FName& FaceWord, float Size);
	FSlateBrush MakeRoundedBrush(const FName& ColorName, float Radius) const;
	FButtonStyle MakeUnderline(const FName& NormalColor, const FName& HoveredColor) const;

	static const FName StyleSetName;
	static FVorelAIStyle* Instance;
};
