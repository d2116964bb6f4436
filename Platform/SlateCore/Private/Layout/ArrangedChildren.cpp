// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Layout/ArrangedChildren.h"

#include "Widgets/SWidget.h"

void FArrangedChildren::AddWidget(const FArrangedWidget& Arranged)
{
	AddWidget(Arranged.Widget->GetVisibility(), Arranged);
}

void FArrangedChildren::AddWidget(EVisibility Visibility, const FArrangedWidget& Arranged)
{
	if (Accepts(Visibility))
	{
		InView.Add(Arranged);
	}
}

void FArrangedChildren::AddOutOfView(const FArrangedWidget& Arranged)
{
	if (Accepts(Arranged.Widget->GetVisibility()))
	{
		OutOfView.Add(Arranged);
	}
}

void FArrangedChildren::SetFormerState(const TOptional<FVector2D>& InSize, TArray<TSharedPtr<SWidget>> InUnsettled)
{
	FormerSize = InSize;
	Unsettled = MoveTemp(InUnsettled);
}

void FArrangedChildren::Remove(const SWidget& Widget)
{
	InView.RemoveAll([&Widget](const FArrangedWidget& Each) { return &*Each.Widget == &Widget; });
}

void FArrangedChildren::ForgetPass()
{
	OutOfView.Empty();
	Unsettled.Empty();
}
