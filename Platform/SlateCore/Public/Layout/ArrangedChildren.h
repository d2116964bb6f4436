// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Visibility.h"

/**
 * The children of one widget with their geometry, in the order they are drawn. The list knows which part of the window can be seen, so that
 * a panel with many children need add only those; see AddOutOfView.
 */
class FArrangedChildren
{
public:
	explicit FArrangedChildren(EVisibility InFilter = EVisibility::Visible, const FSlateRect& InViewRect = FSlateRect::Everything())
		: Filter(InFilter)
		, ViewRect(InViewRect)
	{
	}

	bool Accepts(EVisibility Visibility) const { return EVisibility::DoesVisibilityPassFilter(Visibility, Filter); }
	void AddWidget(const FArrangedWidget& Arranged);
	void AddWidget(EVisibility Visibility, const FArrangedWidget& Arranged);

	/** For a child that cannot be seen, but must learn its size: it is laid out, and neither drawn nor hit. */
	void AddOutOfView(const FArrangedWidget& Arranged);

	/** In device pixels. */
	const FSlateRect& GetViewRect() const { return ViewRect; }

	/** The size of the widget when its children were placed last; unset where all of them must be placed anew, seen or not. */
	const TOptional<FVector2D>& GetFormerSize() const { return FormerSize; }

	/** Children in which something changed since then. */
	const TArray<TSharedPtr<SWidget>>& GetUnsettled() const { return Unsettled; }
	void SetFormerState(const TOptional<FVector2D>& InSize, TArray<TSharedPtr<SWidget>> InUnsettled);

	int32 Num() const { return InView.Num(); }
	const FArrangedWidget& operator[](int32 Index) const { return InView[Index]; }
	const TArray<FArrangedWidget>& GetInternalArray() const { return InView; }
	const TArray<FArrangedWidget>& GetOutOfView() const { return OutOfView; }

	/** For a widget that goes before its parent is placed again. */
	void Remove(const SWidget& Widget);

	/** Keeps only what is needed to draw and to hit. */
	void ForgetPass();

private:
	EVisibility Filter;
	FSlateRect ViewRect;
	TOptional<FVector2D> FormerSize;
	TArray<TSharedPtr<SWidget>> Unsettled;
	TArray<FArrangedWidget> InView;
	TArray<FArrangedWidget> OutOfView;
};
