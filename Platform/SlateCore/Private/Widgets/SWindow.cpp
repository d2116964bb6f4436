// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SWindow.h"

#include "Framework/Application/SlateApplication.h"
#include "Layout/LayoutUtils.h"
#include "Widgets/SPopupLayer.h"

SWindow::SWindow()
	: Layers(*this)
{
	Layers.AddSlot(MakeUnique<FBasicLayoutSlot>());
}

SWindow::~SWindow() = default;

void SWindow::Construct(const FArguments& InArgs)
{
	SetClipping(EWidgetClipping::ClipToBounds);
	SetContent(InArgs._Content.Widget);
}

void SWindow::SetContent(const TSharedRef<SWidget>& InContent)
{
	Layers[0].AttachWidget(InContent);
}

void SWindow::OpenPopup(const TSharedRef<SWidget>& Anchor, const TSharedRef<SWidget>& Popup, const FSimpleDelegate& OnClosed)
{
	ClosePopup();
	FocusBeforePopup = FSlateApplication::Get().GetKeyboardFocusedWidget();
	PopupLayer = SNew(SPopupLayer).Anchor(Anchor).OnDismissed(this, &SWindow::ClosePopup).OnClosed(OnClosed)[Popup];
	Layers.AddSlot(MakeUnique<FBasicLayoutSlot>()).AttachWidget(PopupLayer.ToSharedRef());
}

void SWindow::ClosePopup()
{
	if (!PopupLayer.IsValid())
	{
		return;
	}
	const TSharedRef<SPopupLayer> Closed = PopupLayer.ToSharedRef();
	PopupLayer.Reset();
	const bool bHadFocus = Closed->HasAnyUserFocusOrFocusedDescendants();
	Layers.RemoveAt(1);
	Invalidate(EInvalidateWidgetReason::Layout);
	if (bHadFocus)
	{
		FSlateApplication::Get().SetKeyboardFocus(FocusBeforePopup.Pin());
	}
	Closed->NotifyClosed();
}

TSharedPtr<SWidget> SWindow::GetPopup() const
{
	return PopupLayer.IsValid() ? TSharedPtr<SWidget>(PopupLayer->GetContent()) : nullptr;
}

void SWindow::UpdatePopup()
{
	if (PopupLayer.IsValid() && !PopupLayer->IsAnchored())
	{
		ClosePopup();
	}
	else if (PopupLayer.IsValid())
	{
		PopupLayer->FollowAnchor();
	}
}

void SWindow::NoteFocusChanged()
{
	if (PopupLayer.IsValid() && !PopupLayer->HasAnyUserFocusOrFocusedDescendants())
	{
		ClosePopup();
	}
}

FVector2D SWindow::ComputeDesiredSize(float) const
{
	return ComputeSlotDesiredSize(Layers[0]);
}

void SWindow::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	// A popup comes after the content, in which its anchor has its place by then.
	for (int32 Index = 0; Index < Layers.Num(); ++Index)
	{
		ArrangeSingleChild(AllottedGeometry, ArrangedChildren, Layers[Index]);
	}
}

void SWindow::SetClientArea(const FVector2D& SizeInPixels, float InScale)
{
	check(InScale > 0.0f);
	if (ClientSize != SizeInPixels || Scale != InScale)
	{
		ClientSize = SizeInPixels;
		Scale = InScale;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

FGeometry SWindow::GetWindowGeometryInWindow() const
{
	return FGeometry::MakeRoot(ClientSize / Scale, FSlateLayoutTransform(Scale));
}

TArray<FSlateRect> SWindow::TakeDamage()
{
	TArray<FSlateRect> Taken = MoveTemp(Damage);
	Damage.Empty();
	return Taken;
}

void SWindow::OnTreeInvalidated()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().RequestFrame();
	}
}

void SWindow::SetDisplayList(const TSharedRef<const FSlateDrawChunk>& NewList)
{
	if (DisplayList.IsValid())
	{
		FSlateDrawChunk::FindDamage(*DisplayList, *NewList, Damage);
	}
	else
	{
		Damage.Add(NewList->GetBounds());
	}
	DisplayList = NewList;
}
