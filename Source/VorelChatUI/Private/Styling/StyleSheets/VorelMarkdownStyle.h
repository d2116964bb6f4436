// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateTypes.h"

// A text style for every combination of Markdown block and inline formatting, each under a name such as
// "VorelMarkdown.Blockquote.Paragraph.Strong.Emphasis". The words stand in the order in which they were applied; no word repeats, and no
// more than three stand in one name.
class VORELCHATUI_API FVorelMarkdownStyle final : public FSlateStyleSet
{
public:
	FVorelMarkdownStyle();
	~FVorelMarkdownStyle() override;

	static const FVorelMarkdownStyle& Get();
	static void Initialize();
	static void Shutdown();

	const FName& GetStyleSetName() const override;

	// An unknown name is reported and gives the default style.
	FTextBlockStyle GetStyle(const FString& Name) const;
	FTextBlockStyle GetStyleOrDefault(const FString& Name) const;
	bool HasStyle(const FString& Name) const;

	// Base changed by one formatting word, ignoring case. A font replaces the one before it, so the last font word wins; the size stays.
	// An unknown word is reported and changes nothing.
	FTextBlockStyle CombinedStyle(const FTextBlockStyle& Base, const FString& Word) const;

	// Markup with one line per style, for looking at the set.
	static FString GetDemoText();

private:
	void AddBaseStyles();
	void AddQuotedBlocks(TArray<FString>& OutQuotedBlocks);
	void AddInlineStyles(const TArray<FString>& QuotedBlocks);
	void AddInlineStylesOf(const FString& Block, const FTextBlockStyle& Base);
	void PublishStyles();

	static const FName StyleSetName;
	static FVorelMarkdownStyle* Instance;

	FTextBlockStyle DefaultStyle;
	TMap<FString, FTextBlockStyle> Styles;
};
