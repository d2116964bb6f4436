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

	int32 Num() const { return InView.Num(); }
	const FArrangedWidget& operator[](int32 Index) const { return InView[Index]; }
	const TArray<FArrangedWidget>& GetInternalArray() const { return InView; }
	const TArray<FArrangedWidget>& GetOutOfView() const { return OutOfView; }
	void EmptyOutOfView() { OutOfView.Empty(); }

private:
	EVisibility Filter;
	FSlateRect ViewRect;
	TArray<FArrangedWidget> InView;
	TArray<FArrangedWidget> OutOfView;
};
