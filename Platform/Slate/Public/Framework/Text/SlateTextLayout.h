// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/ISlateRun.h"
#include "Framework/Text/TextLayout.h"
#include "Layout/Children.h"
#include "Rendering/RenderingCommon.h"

class FArrangedChildren;
struct FTextBlockStyle;

/** A text layout that a widget draws, with the widgets among its text as that widget's children. */
class FSlateTextLayout : public FTextLayout
{
public:
	/** The owner outlives the layout. */
	static TSharedRef<FSlateTextLayout> Create(SWidget& InOwner, const FTextBlockStyle& InDefaultTextStyle);

	const FTextBlockStyle& GetDefaultTextStyle() const { return *DefaultTextStyle; }

	FChildren& GetChildren() { return Children; }
	/** But for widgets whose size is assumed until they are seen. */
	void PrepassWidgets(float Scale);
	/** Lays lines out anew whose widgets have changed their size. */
	void UpdateWidgetSizes();
	/** Adds the widgets that can be seen, and makes sure of their size. `TextGeometry` begins at the layout's top left corner. */
	void ArrangeChildren(const FGeometry& TextGeometry, FArrangedChildren& ArrangedChildren) const;

	/** Draws the lines that meet `VisibleArea`, in device pixels of the layout, but not the widgets. */
	void Paint(const FGeometry& TextGeometry, const FSlateRect& VisibleArea, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const;

	virtual TSharedRef<IRun> CreateDefaultTextRun(const TSharedRef<FString>& NewText, const FTextRange& NewRange) const override;

protected:
	virtual void OnLinesChanged() override;

private:
	/** A widget among the text. */
	struct FInlineWidget
	{
		TSharedRef<ISlateRun> Run;
		int32 LineIndex;
		FVector2D MeasuredSize;
	};

	FSlateTextLayout(SWidget& InOwner, const FTextBlockStyle& InDefaultTextStyle);

	static void EnsureSize(SWidget& Widget, float Scale);
	FRunPlacement MakePlacement(const FTextPiece& Piece, const FWrappedLine& Wrapped, const FVector2D& TopLeft) const;

	FSlotlessChildren Children;
	TArray<FInlineWidget> InlineWidgets;
	TSharedRef<const FTextBlockStyle> DefaultTextStyle;
};
