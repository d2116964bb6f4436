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
		Text = InArgs._Text;
		SizeAttribute.Set(*this, InArgs._Size);
		SizeAttribute.Assign(*this, InArgs._BoundSize);
	}

	void SetSize(const FVector2D& InSize) { SizeAttribute.Set(*this, InSize); }
	FString TakeEvents()
	{
		FString Taken = MoveTemp(Events);
		Events = FString();
		return Taken;
	}

	FString GetShownText() const override { return Text; }
	bool SupportsKeyboardFocus() const override { return bFocusable; }
	FReply OnFocusReceived(const FGeometry&, const FFocusEvent&) override { return Note(TEXT("focus")); }
	void OnFocusLost(const FFocusEvent&) override { Note(TEXT("blur")); }
	FReply OnKeyDown(const FGeometry&, const FKeyEvent& Event) override { return Note(*(TEXT("key ") + Event.GetKey().ToString())); }
	FReply OnKeyChar(const FGeometry&, const FCharacterEvent& Event) override
	{
		return Note(*(TEXT("char ") + FString::Chr(Event.GetCharacter())));
	}
	FReply OnMouseButtonDown(const FGeometry&, const FPointerEvent&) override
	{
		const FReply Reply = Note(TEXT("down"));
		return bCaptures ? FReply::Handled().CaptureMouse(AsShared()) : Reply;
	}
	FReply OnMouseButtonUp(const FGeometry&, const FPointerEvent&) override
	{
		const FReply Reply = Note(TEXT("up"));
		return bCaptures ? FReply::Handled().ReleaseMouseCapture() : Reply;
	}
	FReply OnMouseMove(const FGeometry&, const FPointerEvent&) override { return Note(TEXT("move")); }
	FReply OnMouseWheel(const FGeometry&, const FPointerEvent&) override { return Note(TEXT("wheel")); }
	void OnMouseEnter(const FGeometry&, const FPointerEvent&) override { Note(TEXT("enter")); }
	void OnMouseLeave(const FPointerEvent&) override { Note(TEXT("leave")); }
	void OnMouseCaptureLost() override { Note(TEXT("lost capture")); }

	bool bHandles = false;
	bool bCaptures = false;
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
		const FSlateColorBrush Brush(FLinearColor::Red);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), &Brush);
		return LayerId;
	}

private:
	FReply Note(const TCHAR* Event)
	{
		Events += (Events.IsEmpty() ? TEXT("") : TEXT(", ")) + FString(Event);
		return bHandles ? FReply::Handled() : FReply::Unhandled();
	}

	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Layout> SizeAttribute;
	FString Text;
	FString Events;
	bool bFocusable = false;
};

/** As text that wraps: its area stays, so its height follows from the width that it is given. */
class SWrappingProbe : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SWrappingProbe) {}
	SLATE_ARGUMENT_DEFAULT(float, Area) = 1000.0f;
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Area = InArgs._Area; }
	void SetArea(float InArea)
	{
		Area = InArea;
		Invalidate(EInvalidateWidgetReason::Layout);
	}

	mutable int32 NumSized = 0;

protected:
	FVector2D ComputeDesiredSize(float) const override
	{
		++NumSized;
		return FVector2D(10.0, Width > 0.0f ? Area / Width : 0.0);
	}
	void OnArranged(const FGeometry& AllottedGeometry) override
	{
		const float NewWidth = static_cast<float>(AllottedGeometry.GetLocalSize().X);
		if (Width != NewWidth)
		{
			Width = NewWidth;
			Invalidate(EInvalidateWidgetReason::Layout);
		}
	}
	int32 OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList&, int32 LayerId, const FWidgetStyle&,
		bool) const override
	{
		return LayerId;
	}

private:
	float Area = 0.0f;
	float Width = 0.0f;
};
