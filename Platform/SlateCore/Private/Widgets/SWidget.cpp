// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SWidget.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/SNullWidget.h"

SWidget::SWidget()
	: VisibilityAttribute(*this, EVisibility::Visible)
	, EnabledAttribute(*this, true)
	, RenderTransformAttribute(*this)
	, RenderTransformPivotAttribute(*this)
	, ToolTipTextAttribute(*this)
	, AccessibleTextAttribute(*this)
{
}

SWidget::~SWidget() = default;

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args)
{
	Tag = Args._Tag;
	Clipping = Args._Clipping;
	SetVisibility(Args._Visibility);
	SetEnabled(Args._IsEnabled);
	SetToolTipText(Args._ToolTipText);
	SetAccessibleText(Args._AccessibleText);
	SetRenderTransform(Args._RenderTransform);
	SetRenderTransformPivot(Args._RenderTransformPivot);
	if (bCanTick)
	{
		NoteWantsFrames();
	}
}

void SWidget::AssignParent(SWidget& NewParent, FSlotBase* InSlot)
{
	if (bKnowsNoParent)
	{
		return;
	}
	if (AssignedSlot != nullptr && AssignedSlot != InSlot)
	{
		AssignedSlot->DetachWidget();
	}
	Parent = &NewParent;
	AssignedSlot = InSlot;
	bListedInParent = false;
	ListInParent();
	if (bWantsFrames)
	{
		NewParent.NoteWantsFrames();
	}
	if (VisibilityAttribute.IsBound())
	{
		NewParent.BoundVisibilityChildren.Add(AsWeak());
	}
}

void SWidget::RemoveParent(const SWidget& OldParent)
{
	if (Parent == &OldParent)
	{
		// Else it would stay alive, and be hit, until the next frame.
		Parent->Arranged.Remove(*this);
		Parent = nullptr;
		AssignedSlot = nullptr;
		bListedInParent = false;
	}
}

void SWidget::NoteWantsFrames()
{
	for (SWidget* Widget = this; Widget != nullptr && !Widget->bWantsFrames; Widget = Widget->Parent)
	{
		Widget->bWantsFrames = true;
	}
}

void SWidget::SetClipping(EWidgetClipping InClipping)
{
	if (Clipping != InClipping)
	{
		Clipping = InClipping;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

TSharedPtr<SWidget> SWidget::GetParentWidget() const
{
	return Parent != nullptr ? TSharedPtr<SWidget>(Parent->AsShared()) : nullptr;
}

bool SWidget::HasKeyboardFocus() const
{
	return FSlateApplication::IsInitialized() && FSlateApplication::Get().GetKeyboardFocusedWidget().Get() == this;
}

bool SWidget::HasAnyUserFocusOrFocusedDescendants() const
{
	const TSharedPtr<SWidget> Focused = FSlateApplication::Get().GetKeyboardFocusedWidget();
	const SWidget* Around = Focused.Get();
	while (Around != nullptr && Around != this)
	{
		Around = Around->Parent;
	}
	return Around != nullptr;
}

bool SWidget::HasMouseCapture() const
{
	return FSlateApplication::IsInitialized() && FSlateApplication::Get().GetMouseCaptor().Get() == this;
}

FString SWidget::GetTypeAsString() const
{
	const FStringView Full(CreatedAs);
	int32 Length = 0;
	while (Length < Full.Len() && Full[Length] != u'<')
	{
		++Length;
	}
	return FString(Full.Left(Length));
}

FText SWidget::GetAccessibleText() const
{
	for (const FText& Candidate : {AccessibleTextAttribute.Get(), ComputeAccessibleText()})
	{
		if (!Candidate.IsEmpty())
		{
			return Candidate;
		}
	}
	return ToolTipTextAttribute.Get();
}

FReply SWidget::OnFocusReceived(const FGeometry&, const FFocusEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyChar(const FGeometry&, const FCharacterEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyDown(const FGeometry&, const FKeyEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyUp(const FGeometry&, const FKeyEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnTextComposition(const FGeometry&, const FTextCompositionEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonDown(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonUp(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonDoubleClick(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseMove(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseWheel(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

FCursorReply SWidget::OnCursorQuery(const FGeometry&, const FPointerEvent&) const
{
	return Cursor.IsSet() ? FCursorReply::Cursor(Cursor.GetValue()) : FCursorReply::Unhandled();
}

FSlateSlotContent::FSlateSlotContent()
	: Widget(SNullWidget::NullWidget)
{
}
