// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SlateAttribute.h"

#include "Widgets/SWidget.h"

FSlateAttributeBase::~FSlateAttributeBase()
{
	if (BoundOwner != nullptr)
	{
		BoundOwner->BoundAttributes.Remove(this);
	}
}

void FSlateAttributeBase::Register(SWidget& Owner, bool bBound)
{
	if (bBound == (BoundOwner != nullptr))
	{
		return;
	}
	if (!bBound)
	{
		Owner.BoundAttributes.Remove(this);
		BoundOwner = nullptr;
		return;
	}
	BoundOwner = &Owner;
	Owner.BoundAttributes.Add(this);
	Owner.NoteWantsFrames();
	if (this == &Owner.VisibilityAttribute && Owner.Parent != nullptr)
	{
		Owner.Parent->BoundVisibilityChildren.Add(Owner.AsWeak());
	}
}

void FSlateAttributeBase::InvalidateOwner(SWidget& Owner, EInvalidateWidgetReason Reason)
{
	Owner.Invalidate(Reason);
}
