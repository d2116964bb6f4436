// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/SWindow.h"

#include "Framework/Application/SlateApplication.h"

SWindow::SWindow() = default;

void SWindow::Construct(const FArguments& InArgs)
{
	SetClipping(EWidgetClipping::ClipToBounds);
	SetContent(InArgs._Content.Widget);
}

void SWindow::SetContent(const TSharedRef<SWidget>& InContent)
{
	ChildSlot[InContent];
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
