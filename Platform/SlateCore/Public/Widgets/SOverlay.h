// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SPanel.h"

/** Children on top of each other, the last one uppermost; as large as the largest. */
class SOverlay : public SPanel
{
public:
	class FOverlaySlot final : public FBasicLayoutSlot
	{
	public:
		class FSlotArguments : public TBasicLayoutSlotArguments<FOverlaySlot, FSlotArguments>
		{
		public:
			using TBasicLayoutSlotArguments::TBasicLayoutSlotArguments;
		};
	};

	SLATE_BEGIN_ARGS(SOverlay) { _Visibility = EVisibility::SelfHitTestInvisible; }
	SLATE_SLOT_ARGUMENT(FOverlaySlot, Slots)
	SLATE_END_ARGS()

	SOverlay();
	void Construct(const FArguments& InArgs);

	static FOverlaySlot::FSlotArguments Slot() { return FOverlaySlot::FSlotArguments(MakeUnique<FOverlaySlot>()); }

	virtual FChildren* GetChildren() override { return &Children; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	TPanelChildren<FOverlaySlot> Children;
};
