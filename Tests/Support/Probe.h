// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Brushes/SlateColorBrush.h"
#include "Widgets/SLeafWidget.h"

/** A box of one color and a settable size, which counts what the passes ask of it and notes the input it gets. */
class SProbe : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SProbe) {}
	SLATE_ARGUMENT_DEFAULT(FVector2D, Size) = FVector2D(20.0, 10.0);
	SLATE_ARGUMENT_DEFAULT(bool, Focusable) = false;
	/** It handles what it gets, and holds the mouse while a button is down. */
	SLATE_ARGUMENT_DEFAULT(bool, Greedy) = false;
	SLATE_ARGUMENT(FString, Text)
	SLATE_ATTRIBUTE(FVector2D, BoundSize)
	SLATE_END_ARGS()

	SProbe()
		: SizeAttribute(*this)
	{
	}

	void Construct(const FArguments& InArgs)
	{
		bFocusable = InArgs._Focusable;
		bGreedy = InArgs._Greedy;
		Text = InArgs._Text;
		SizeAttribute.Set(*this, InArgs._Size);
		SizeAttribute.Assign(*this, InArgs._BoundSize);
	}

	void SetSize(const FVector2D& InSize) { SizeAttribute.Set(*this, InSize); }
	void SetColor(const FLinearColor& InColor)
	{
		Color = InColor;
		Invalidate(EInvalidateWidgetReason::Paint);
	}

	/** What came since the last call, as in "enter, down LeftMouseButton, key A, char 61". */
	FString TakeEvents() { return std::exchange(Events, FString()); }

	FString GetShownText() const override { return Text; }
	bool SupportsKeyboardFocus() const override { return bFocusable; }
	FReply OnFocusReceived(const FGeometry&, const FFocusEvent&) override { return Note(TEXT("focus")); }
	void OnFocusLost(const FFocusEvent&) override { Note(TEXT("blur")); }
	FReply OnKeyDown(const FGeometry&, const FKeyEvent& Event) override { return Note(TEXT("key ") + Event.GetKey().ToString()); }
	FReply OnKeyUp(const FGeometry&, const FKeyEvent& Event) override { return Note(TEXT("keyup ") + Event.GetKey().ToString()); }
	FReply OnKeyChar(const FGeometry&, const FCharacterEvent& Event) override
	{
		return Note(FString::Printf(TEXT("char %x"), static_cast<uint32>(Event.GetCharacter())));
	}
	FReply OnTextComposition(const FGeometry&, const FTextCompositionEvent& Event) override
	{
		Composition = Event;
		return Note(TEXT("composition"));
	}
	FReply OnMouseButtonDown(const FGeometry&, const FPointerEvent& Event) override
	{
		const FReply Reply = Note(TEXT("down"), Event);
		return bGreedy ? FReply::Handled().CaptureMouse(AsShared()) : Reply;
	}
	FReply OnMouseButtonUp(const FGeometry&, const FPointerEvent& Event) override
	{
		const FReply Reply = Note(TEXT("up"), Event);
		return bGreedy ? FReply::Handled().ReleaseMouseCapture() : Reply;
	}
	FReply OnMouseButtonDoubleClick(const FGeometry&, const FPointerEvent& Event) override { return Note(TEXT("double"), Event); }
	FReply OnMouseMove(const FGeometry&, const FPointerEvent& Event) override { return Note(TEXT("move"), Event); }
	FReply OnMouseWheel(const FGeometry&, const FPointerEvent& Event) override { return Note(TEXT("wheel"), Event); }
	void OnMouseEnter(const FGeometry&, const FPointerEvent&) override { Note(TEXT("enter")); }
	void OnMouseLeave(const FPointerEvent&) override { Note(TEXT("leave")); }
	void OnMouseCaptureLost() override { Note(TEXT("lost capture")); }

	bool bGreedy = false;
	FPointerEvent LastPointerEvent{FVector2D(), FKey()};
	FTextCompositionEvent Composition;
	mutable int32 NumSized = 0;
	mutable int32 NumPainted = 0;
	int32 NumArranged = 0;

protected:
	FVector2D ComputeDesiredSize(float) const override
	{
		++NumSized;
		return SizeAttribute.Get();
	}
	void OnArranged(const FGeometry&) override { ++NumArranged; }
	int32 OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle&, bool) const override
	{
		++NumPainted;
		const FSlateColorBrush Brush(FLinearColor::White);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), &Brush, ESlateDrawEffect::None, Color);
		return LayerId;
	}

private:
	FReply Note(const FString& Event)
	{
		Events += (Events.IsEmpty() ? TEXT("") : TEXT(", ")) + Event;
		return bGreedy ? FReply::Handled() : FReply::Unhandled();
	}

	FReply Note(const TCHAR* Word, const FPointerEvent& Event)
	{
		LastPointerEvent = Event;
		const FKey Button = Event.GetEffectingButton();
		return Note(Button.IsValid() ? Word + (TEXT(" ") + Button.ToString()) : FString(Word));
	}

	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Layout> SizeAttribute;
	FLinearColor Color = FLinearColor::White;
	FString Text;
	FString Events;
	bool bFocusable = false;
};
