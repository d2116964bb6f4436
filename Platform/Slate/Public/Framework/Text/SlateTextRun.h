// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/ISlateRun.h"

class FShapedText;
struct FTextBlockStyle;

/** Text in one style. Style and run info are shared by all runs that look alike, and never change. */
class FSlateTextRun : public ISlateRun
{
public:
	static TSharedRef<FSlateTextRun> Create(
		const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText, const FTextBlockStyle& Style, const FTextRange& InRange);
	/** Saves the search for a style to share. */
	static TSharedRef<FSlateTextRun> Create(const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText,
		const TSharedRef<const FTextBlockStyle>& Style, const FTextRange& InRange);

	virtual const FRunInfo& GetRunInfo() const override { return RunInfo; }
	virtual FTextRange GetTextRange() const override { return Range; }
	virtual ERunAttributes GetRunAttributes() const override { return ERunAttributes::SupportsText; }
	virtual int32 GetBaseLine(float Scale) const override;
	virtual int32 GetMaxHeight(float Scale) const override;
	virtual FVector2D Measure(int32 StartIndex, int32 EndIndex, float Scale, const FRunTextContext& TextContext) const override;
	virtual float GetCaretOffset(const FTextRange& Stretch, int32 Index, float Scale, const FRunTextContext& TextContext) const override;
	virtual bool IsSameAs(const IRun& Other) const override;
	virtual void OnPaint(const FRunPlacement& Placement, const FGeometry& TextGeometry, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const override;

protected:
	/** Lets only this class and derived ones call a constructor that is open to MakeShared. */
	struct FMakeKey
	{
		explicit FMakeKey() = default;
	};

	FSlateTextRun(
		const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText, const FTextBlockStyle& InStyle, const FTextRange& InRange);

private:
	TSharedRef<const FRunInfo> SharedRunInfo;
	TSharedRef<const FTextBlockStyle> SharedStyle;

protected:
	const FRunInfo& RunInfo;
	const TSharedRef<const FString> Text;
	const FTextBlockStyle& Style;
	const FTextRange Range;

public:
	FSlateTextRun(FMakeKey, const FRunInfo& InRunInfo, const TSharedRef<const FString>& InText,
		const TSharedRef<const FTextBlockStyle>& InStyle, const FTextRange& InRange);

private:
	TSharedRef<const FShapedText> Shape(const FTextRange& Stretch, float Scale, const FRunTextContext& TextContext) const;
	void PaintText(const FRunPlacement& Placement, const FGeometry& TextGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const;
	void PaintLines(const FRunPlacement& Placement, const FGeometry& TextGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const;
};
