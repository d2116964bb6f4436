// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Layout/Children.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"

/** A slot with room around its child and a place for it where there is more room than it wishes for. Setters lay the owner out again. */
class FBasicLayoutSlot : public FSlotBase
{
public:
	explicit FBasicLayoutSlot(EHorizontalAlignment InHAlign = HAlign_Fill, EVerticalAlignment InVAlign = VAlign_Fill)
		: HAlign(InHAlign)
		, VAlign(InVAlign)
	{
	}

	const FMargin& GetPadding() const { return Padding; }
	void SetPadding(const FMargin& InPadding);
	EHorizontalAlignment GetHorizontalAlignment() const { return HAlign; }
	void SetHorizontalAlignment(EHorizontalAlignment InAlignment);
	EVerticalAlignment GetVerticalAlignment() const { return VAlign; }
	void SetVerticalAlignment(EVerticalAlignment InAlignment);

private:
	FMargin Padding;
	EHorizontalAlignment HAlign;
	EVerticalAlignment VAlign;
};

/** The one slot of a compound widget, as in "ChildSlot.Padding(5)[ ... ]". */
class FCompoundWidgetOneChildSlot final : public FBasicLayoutSlot, public FChildren
{
public:
	explicit FCompoundWidgetOneChildSlot(SWidget& InOwner) { SetOwner(InOwner); }

	FCompoundWidgetOneChildSlot& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		AttachWidget(InChildWidget);
		return *this;
	}
	FCompoundWidgetOneChildSlot& Padding(const FMargin& InPadding)
	{
		SetPadding(InPadding);
		return *this;
	}
	FCompoundWidgetOneChildSlot& HAlign(EHorizontalAlignment InAlignment)
	{
		SetHorizontalAlignment(InAlignment);
		return *this;
	}
	FCompoundWidgetOneChildSlot& VAlign(EVerticalAlignment InAlignment)
	{
		SetVerticalAlignment(InAlignment);
		return *this;
	}

	virtual int32 Num() const override { return 1; }
	virtual TSharedRef<SWidget> GetChildAt(int32) const override { return GetWidget(); }
};

/** The named arguments of a slot: "+ SOverlay::Slot().HAlign(HAlign_Center)[ ... ]". A setter is there for each property the slot type has.
 */
template <typename SlotType, typename DerivedType>
class TBasicLayoutSlotArguments
{
public:
	explicit TBasicLayoutSlotArguments(TUniquePtr<SlotType> InSlot)
		: Slot(MoveTemp(InSlot))
	{
	}

	DerivedType& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		Slot->AttachWidget(InChildWidget);
		return Me();
	}
	DerivedType& Padding(const FMargin& InPadding)
	{
		Slot->SetPadding(InPadding);
		return Me();
	}
	DerivedType& Padding(float Horizontal, float Vertical) { return Padding(FMargin(Horizontal, Vertical)); }
	DerivedType& Padding(float Left, float Top, float Right, float Bottom) { return Padding(FMargin(Left, Top, Right, Bottom)); }
	DerivedType& HAlign(EHorizontalAlignment InAlignment)
	{
		Slot->SetHorizontalAlignment(InAlignment);
		return Me();
	}
	DerivedType& VAlign(EVerticalAlignment InAlignment)
	{
		Slot->SetVerticalAlignment(InAlignment);
		return Me();
	}

	TUniquePtr<SlotType> StealSlot() { return MoveTemp(Slot); }

protected:
	DerivedType& Me() { return static_cast<DerivedType&>(*this); }

	TUniquePtr<SlotType> Slot;
};

/** Slot arguments that put the slot into the panel when the statement ends: "Box->AddSlot().AutoHeight()[ ... ];". */
template <typename SlotType, typename SlotArgumentsType>
class TScopedWidgetSlotArguments final : public SlotArgumentsType
{
public:
	TScopedWidgetSlotArguments(TPanelChildren<SlotType>& InChildren, int32 InIndex)
		: SlotArgumentsType(MakeUnique<SlotType>())
		, Children(&InChildren)
		, Index(InIndex)
	{
	}
	TScopedWidgetSlotArguments(TScopedWidgetSlotArguments&& Other)
		: SlotArgumentsType(Other.StealSlot())
		, Children(Other.Children)
		, Index(Other.Index)
	{
	}
	~TScopedWidgetSlotArguments()
	{
		if (TUniquePtr<SlotType> Filled = this->StealSlot())
		{
			Children->AddSlot(MoveTemp(Filled), Index);
		}
	}

private:
	TPanelChildren<SlotType>* Children;
	int32 Index;
};
