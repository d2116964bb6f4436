// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SPanel.h"

struct FBoxSlotExtent;

/** What both boxes share: a row of slots, each as long as its child wishes or filling what is left by weight. */
class SBoxPanel : public SPanel
{
public:
	class FSlot : public FBasicLayoutSlot
	{
	public:
		/** Zero for a slot that is as long as its child wishes. */
		float GetFillWeight() const { return FillWeight; }
		void SetFillWeight(float InWeight);

		/** The child gets no more than this along the box; zero means no limit. */
		float GetMaxSize() const { return MaxSize; }
		void SetMaxSize(float InMaxSize);

	private:
		float FillWeight = 1.0f;
		float MaxSize = 0.0f;
	};

	/** The slot that holds this widget goes; false where there is none. */
	bool RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	void ClearChildren();

	virtual FChildren* GetChildren() override { return &Children; }

protected:
	explicit SBoxPanel(EOrientation InOrientation);

	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual void OnChildLayoutChanged(const FSlotBase* ChildSlot) override;

	TPanelChildren<FSlot> Children;

private:
	/** Along the box, what the slots up to and including one need together; across it, the most that one of them needs. In units. */
	struct FRunningTotal
	{
		float Along = 0.0f;
		float Across = 0.0f;
		int32 NumFilling = 0;
	};

	void UpdateTotals() const;
	FRunningTotal AddToTotal(const FRunningTotal& Before, const FSlot& Slot) const;
	void ArrangeFilling(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const;
	void ArrangeVisibleRange(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const;
	void PlaceSlot(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, int32 Index, bool bInView) const;
	FArrangedWidget ArrangeSlot(const FGeometry& AllottedGeometry, const FSlot& Slot, const FBoxSlotExtent& Extent) const;

	/** The first slot that does not end before an offset, by binary search. */
	int32 FindSlotAt(float Offset) const;
	float GetOffset(int32 Index) const { return Index > 0 ? Totals[Index - 1].Along : 0.0f; }
	float Along(const FVector2D& Size) const { return static_cast<float>(Orientation == Orient_Horizontal ? Size.X : Size.Y); }
	float Across(const FVector2D& Size) const { return static_cast<float>(Orientation == Orient_Horizontal ? Size.Y : Size.X); }

	EOrientation Orientation;

	/** Running totals by slot; the first NumSettled of them are valid. */
	mutable TArray<FRunningTotal> Totals;
	mutable int32 NumSettled = 0;
};

class SHorizontalBox : public SBoxPanel
{
public:
	class FSlot final : public SBoxPanel::FSlot
	{
	public:
		class FSlotArguments : public TBasicLayoutSlotArguments<SBoxPanel::FSlot, FSlotArguments>
		{
		public:
			using TBasicLayoutSlotArguments::TBasicLayoutSlotArguments;

			FSlotArguments& AutoWidth() { return FillWidth(0.0f); }
			FSlotArguments& FillWidth(float InWeight)
			{
				Slot->SetFillWeight(InWeight);
				return *this;
			}
			FSlotArguments& MaxWidth(float InMaxWidth)
			{
				Slot->SetMaxSize(InMaxWidth);
				return *this;
			}
		};
	};
	using FScopedWidgetSlotArguments = TScopedWidgetSlotArguments<SBoxPanel::FSlot, FSlot::FSlotArguments>;

	SLATE_BEGIN_ARGS(SHorizontalBox) { _Visibility = EVisibility::SelfHitTestInvisible; }
	SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_END_ARGS()

	SHorizontalBox()
		: SBoxPanel(Orient_Horizontal)
	{
	}
	void Construct(const FArguments& InArgs);

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(MakeUnique<SBoxPanel::FSlot>()); }

	/** At the end where Index is INDEX_NONE. */
	FScopedWidgetSlotArguments AddSlot(int32 Index = INDEX_NONE) { return FScopedWidgetSlotArguments(Children, Index); }
};

class SVerticalBox : public SBoxPanel
{
public:
	class FSlot final : public SBoxPanel::FSlot
	{
	public:
		class FSlotArguments : public TBasicLayoutSlotArguments<SBoxPanel::FSlot, FSlotArguments>
		{
		public:
			using TBasicLayoutSlotArguments::TBasicLayoutSlotArguments;

			FSlotArguments& AutoHeight() { return FillHeight(0.0f); }
			FSlotArguments& FillHeight(float InWeight)
			{
				Slot->SetFillWeight(InWeight);
				return *this;
			}
		};
	};
	using FScopedWidgetSlotArguments = TScopedWidgetSlotArguments<SBoxPanel::FSlot, FSlot::FSlotArguments>;

	SLATE_BEGIN_ARGS(SVerticalBox) { _Visibility = EVisibility::SelfHitTestInvisible; }
	SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_END_ARGS()

	SVerticalBox()
		: SBoxPanel(Orient_Vertical)
	{
	}
	void Construct(const FArguments& InArgs);

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(MakeUnique<SBoxPanel::FSlot>()); }

	/** At the end where Index is INDEX_NONE. */
	FScopedWidgetSlotArguments AddSlot(int32 Index = INDEX_NONE) { return FScopedWidgetSlotArguments(Children, Index); }
};
