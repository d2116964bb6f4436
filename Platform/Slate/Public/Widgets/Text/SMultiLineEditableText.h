// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Commands/InputChord.h"
#include "Framework/SlateDelegates.h"
#include "Framework/Text/TextLayout.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SWidget.h"

class FEditableTextController;
class FEditableTextMouse;
class FSlateTextLayout;
class ITextLayoutMarshaller;
struct FTextWrapping;

enum class ETextOverflowPolicy : uint8
{
	/** What does not fit is cut off at the widget's edge. */
	Clip
};

/**
 * Text of many lines without a frame around it, to read or to edit. Where its height is limited it scrolls. A marshaller makes styled runs
 * and widgets of the text; those widgets are its children.
 */
class SMultiLineEditableText : public SWidget
{
	SLATE_BEGIN_ARGS(SMultiLineEditableText) {}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_ATTRIBUTE(FText, HintText)
	/** Plain text if unset. */
	SLATE_ARGUMENT(TSharedPtr<ITextLayoutMarshaller>, Marshaller)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	/** In the place of the style's font. */
	SLATE_ARGUMENT(TOptional<FSlateFontInfo>, Font)
	SLATE_ATTRIBUTE(bool, IsReadOnly)
	/** In units; not at all if zero. */
	SLATE_ARGUMENT(float, WrapTextAt)
	/** At the width that the widget is given, if that is less. */
	SLATE_ARGUMENT(bool, AutoWrapText)
	SLATE_ARGUMENT(ETextWrappingPolicy, WrappingPolicy)
	SLATE_ARGUMENT(ETextOverflowPolicy, OverflowPolicy)
	SLATE_ARGUMENT_DEFAULT(bool, AllowMultiLine){true};
	SLATE_ARGUMENT(FMargin, Margin)
	SLATE_ARGUMENT(ETextJustify::Type, Justification)
	SLATE_ARGUMENT(ETextShapingMethod, TextShapingMethod)
	SLATE_ARGUMENT_DEFAULT(bool, ClearTextSelectionOnFocusLoss){true};
	/** With it Enter makes a new line, and alone it commits; if none, Enter makes a new line. */
	SLATE_ARGUMENT(EModifierKey::Type, ModiferKeyForNewLine)
	/** After each change by the user. */
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_END_ARGS()

public:
	SMultiLineEditableText();
	virtual ~SMultiLineEditableText() override;

	void Construct(const FArguments& InArgs);

	/** Reads the text anew, also the same one, once it is needed: lines that did not change keep their runs, but for those with widgets. */
	void SetText(const TAttribute<FText>& InText);
	/** What was edited; of a read-only text the source, with its markup. */
	FText GetText() const;
	bool IsTextReadOnly() const;

	/** The lines as they stand, with what is being composed; locations refer to it. */
	FText GetPlainText() const;
	FTextSelection GetSelection() const;
	FTextLocation GetCursorLocation() const;
	/** What a character covers, absolute; at the end of a line a little space. The location is one of the text. */
	FSlateRect GetCharacterArea(const FTextLocation& Location) const;
	/** The nearest one. */
	FTextLocation GetCharacterAt(const FVector2D& AbsolutePosition) const;

	/** Of all carets, for pictures that must not depend on the time. */
	static void SetCaretBlinking(bool bEnabled);

	virtual FString GetShownText() const override;
	virtual FString GetHint() const override { return HintAttribute.Get().ToString(); }

	virtual FChildren* GetChildren() override;
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnTextComposition(const FGeometry& MyGeometry, const FTextCompositionEvent& InEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost() override;
	virtual FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const override;

protected:
	virtual bool CustomPrepass(float LayoutScaleMultiplier) override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArranged(const FGeometry& AllottedGeometry) override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	TSharedRef<FSlateTextLayout> MakeLayout(const FArguments& InArgs, const FTextBlockStyle& Style);
	/** Brings the lines up to the text that was set last. */
	void ApplyText() const;
	void ApplyHint() const;
	FSlateTextLayout& GetTextLayout() const;
	FEditableTextController& GetController() const;
	bool IsHintShown() const;
	/** Behind the last letter of a line there must be room for the caret. In units. */
	float GetCaretRoom() const;
	/** Scrolled: its origin is the text's top left corner. */
	FGeometry GetTextGeometry(const FGeometry& AllottedGeometry) const;
	void ReportInputArea(const FGeometry& TextGeometry) const;
	void WithdrawInputArea();

	TSlateAttribute<FText, EInvalidateWidgetReason::Layout> TextAttribute;
	TSlateAttribute<FText, EInvalidateWidgetReason::Layout> HintAttribute;
	TSharedPtr<FSlateTextLayout> TextLayout;
	/** Null where no hint is given. */
	TSharedPtr<FSlateTextLayout> HintLayout;
	TUniquePtr<FTextWrapping> Wrapping;
	TUniquePtr<FEditableTextController> Controller;
	TUniquePtr<FEditableTextMouse> Mouse;
	FSlateColor TextColor;
	/** What the lines were made of; unset where they are to be made anew. */
	mutable TOptional<FText> LaidOutText;
	mutable TOptional<FText> LaidOutHint;
	/** Where input methods were last told that the caret is; absolute. Unset while they are told nothing. */
	mutable TOptional<FSlateRect> InputArea;
};
