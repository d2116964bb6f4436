// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Application/SlateFrame.h"
#include "Widgets/SWidget.h"

void SWidget::MarkPaint() const
{
	for (const SWidget* Widget = this; Widget != nullptr && !Widget->bPaintPending; Widget = Widget->Parent)
	{
		Widget->bPaintPending = true;
		if (Widget->Parent == nullptr)
		{
			const_cast<SWidget*>(Widget)->OnTreeInvalidated();
		}
		if (Widget->GetVisibility() == EVisibility::Collapsed)
		{
			return;
		}
	}
}

int32 SWidget::Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FPaintKey Key{AllottedGeometry, MyCullingRect, InWidgetStyle, bParentEnabled};
	if (bPaintPending || !Chunk.IsValid() || !(Key == PaintKey))
	{
		bPaintPending = false;
		PaintKey = MoveTemp(Key);
		++FSlateFrame::GetStats().NumPainted;
		const bool bClips = Clipping == EWidgetClipping::ClipToBounds;
		const FSlateRect Culling = bClips ? MyCullingRect.IntersectionWith(AllottedGeometry.GetRenderBoundingRect()) : MyCullingRect;
		OutDrawElements.BeginChunk(this, bClips ? TOptional<FSlateRect>(Culling) : TOptional<FSlateRect>());
		OnPaint(Args, AllottedGeometry, Culling, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
		Chunk = OutDrawElements.EndChunk();
	}
	OutDrawElements.AddChunk(Chunk.ToSharedRef());
	return LayerId;
}

int32 SWidget::PaintArrangedChildren(const FPaintArgs& Args, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	int32 MaxLayerId = LayerId;
	for (const FArrangedWidget& Child : Arranged.GetInternalArray())
	{
		if (FSlateRect::DoRectanglesIntersect(MyCullingRect, Child.Geometry.GetRenderBoundingRect()))
		{
			MaxLayerId = FMath::Max(MaxLayerId,
				Child.Widget->Paint(Args, Child.Geometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled));
		}
	}
	return MaxLayerId;
}
