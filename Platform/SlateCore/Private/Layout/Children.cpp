// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Layout/Children.h"

#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

FNoChildren& FNoChildren::Get()
{
	static FNoChildren None;
	return None;
}

TSharedRef<SWidget> FNoChildren::GetChildAt(int32) const
{
	checkf(false, TEXT("A widget without children was asked for one"));
	return SNullWidget::NullWidget;
}

FSlotBase::FSlotBase()
	: Widget(SNullWidget::NullWidget)
{
}

FSlotBase::~FSlotBase()
{
	if (Owner != nullptr)
	{
		Widget->RemoveParent(*Owner);
	}
}

void FSlotBase::AttachWidget(const TSharedRef<SWidget>& InWidget)
{
	if (Owner == nullptr)
	{
		Widget = InWidget;
		return;
	}
	Widget->RemoveParent(*Owner);
	Widget = InWidget;
	Widget->AssignParent(*Owner, this);
	InvalidateOwner();
}

void FSlotBase::DetachWidget()
{
	AttachWidget(SNullWidget::NullWidget);
}

void FSlotBase::SetOwner(SWidget& InOwner)
{
	check(Owner == nullptr);
	Owner = &InOwner;
	Widget->AssignParent(InOwner, this);
	InvalidateOwner();
}

void FSlotBase::InvalidateOwner()
{
	if (Owner != nullptr)
	{
		Owner->OnChildLayoutChanged(this);
		Owner->Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void FSlotlessChildren::Add(const TSharedRef<SWidget>& Child)
{
	Widgets.Add(Child);
	Child->AssignParent(Owner, nullptr);
	Owner.Invalidate(EInvalidateWidgetReason::Layout);
}

void FSlotlessChildren::Empty()
{
	for (const TSharedRef<SWidget>& Child : Widgets)
	{
		Child->RemoveParent(Owner);
	}
	Widgets.Empty();
}
