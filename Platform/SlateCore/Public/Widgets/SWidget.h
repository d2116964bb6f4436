// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"
#include "Input/CursorReply.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Children.h"
#include "Layout/Clipping.h"
#include "Layout/Geometry.h"
#include "Layout/Visibility.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SlateAttribute.h"

/** What painting is told besides the widget's own room. */
class FPaintArgs
{
};

/**
 * The base of everything on screen. A frame runs over the tree in passes, and each skips what did not change:
 *
 *   attributes  bound values of widgets in view are read once; what changed is invalidated
 *   Tick        widgets in view whose class overrides it
 *   prepass     ComputeDesiredSize, children first, in units; only for widgets that are invalid or have a child whose size changed
 *   arrange     OnArranged, then OnArrangeChildren, parents first; only for widgets whose room changed or that are invalid
 *   paint       OnPaint, parents first; only for widgets in view whose room or look changed
 *
 * Text that wraps knows its height only once it knows its width. Such a widget overrides OnArranged and invalidates its layout there when
 * its wrapping width changed; prepass and arrange then run again before anything is painted, at most MaxLayoutPasses times in a frame. A
 * widget may be given exactly the width it wished for, so wrapping must tolerate rounding.
 */
class SWidget : public TSharedFromThis<SWidget>
{
public:
	static constexpr int32 MaxLayoutPasses = 4;

	virtual ~SWidget();
	SWidget(const SWidget&) = delete;
	SWidget& operator=(const SWidget&) = delete;

	void SWidgetConstruct(const FSlateBaseNamedArgs& Args);

	// Layout

	/**
	 * For a widget that is made in the place of an equal one: its size, in units, until the first prepass. A parent whose children are laid
	 * out by CustomPrepass may leave that until the widget is seen.
	 */
	void AssumeDesiredSize(const FVector2D& InSize);
	bool IsDesiredSizeAssumed() const { return bDesiredSizeAssumed; }

	/** Makes GetDesiredSize valid for this widget and what is in it. Costs nothing where nothing changed. */
	void SlatePrepass(float LayoutScaleMultiplier);

	/** In units; of the last prepass. */
	const FVector2D& GetDesiredSize() const { return DesiredSize; }

	/** Gives the widget its room and places its children. ViewRect is the part of the window that can be seen, in device pixels. */
	void Arrange(const FGeometry& AllottedGeometry, const FSlateRect& ViewRect);

	/** The room of the last arrange pass. While a widget is scrolled out of view only its size is kept up to date. */
	const FGeometry& GetCachedGeometry() const { return CachedGeometry; }

	/** The room it would have in this moment, also while it is scrolled out of view. Places all its siblings at every level, so it is dear.
	 */
	FGeometry ComputeGeometry() const;

	/** The children in view, as placed by the last arrange pass. */
	const FArrangedChildren& GetArrangedChildren() const { return Arranged; }

	/** Computes where the children would stand in a given room. */
	void ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const;

	virtual FChildren* GetChildren() = 0;

	// Painting

	int32 Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	void Invalidate(EInvalidateWidgetReason Reason);

	// State

	EVisibility GetVisibility() const { return VisibilityAttribute.Get(); }
	void SetVisibility(TAttribute<EVisibility> InVisibility) { VisibilityAttribute.Assign(*this, InVisibility); }
	bool IsEnabled() const { return EnabledAttribute.Get(); }
	void SetEnabled(TAttribute<bool> InEnabled) { EnabledAttribute.Assign(*this, InEnabled); }

	/** In local units, about the pivot, which is in parts of the widget's size. Layout does not see it. */
	void SetRenderTransform(TAttribute<TOptional<FSlateRenderTransform>> InTransform)
	{
		RenderTransformAttribute.Assign(*this, InTransform);
	}
	const TOptional<FSlateRenderTransform>& GetRenderTransform() const { return RenderTransformAttribute.Get(); }
	void SetRenderTransformPivot(TAttribute<FVector2D> InPivot) { RenderTransformPivotAttribute.Assign(*this, InPivot); }
	const FVector2D& GetRenderTransformPivot() const { return RenderTransformPivotAttribute.Get(); }

	void SetClipping(EWidgetClipping InClipping);
	EWidgetClipping GetClipping() const { return Clipping; }
	void SetCursor(const TOptional<EMouseCursor::Type>& InCursor) { Cursor = InCursor; }

	TSharedPtr<SWidget> GetParentWidget() const;

	/** The slot it stands in; null where its parent has none. */
	const FSlotBase* GetAssignedSlot() const { return AssignedSlot; }
	bool IsHovered() const { return bIsHovered; }
	bool HasKeyboardFocus() const;
	bool HasAnyUserFocusOrFocusedDescendants() const;
	bool HasMouseCapture() const;

	// Seen from outside: the tree dump, tests, assistive technology

	/** The class it was made as, without template arguments. */
	FString GetTypeAsString() const;
	const FName& GetTag() const { return Tag; }

	/** What it itself shows to a reader, never markup; empty for a widget that shows no text. */
	virtual FString GetShownText() const { return FString(); }
	virtual FString GetHint() const { return FString(); }

	/** The name given to it, else one that its content suggests, else its tool tip. */
	FText GetAccessibleText() const;
	void SetAccessibleText(TAttribute<FText> InText) { AccessibleTextAttribute.Assign(*this, InText); }
	void SetToolTipText(TAttribute<FText> InText) { ToolTipTextAttribute.Assign(*this, InText); }

	/** The foreground color of its content. */
	virtual FSlateColor GetForegroundColor() const { return FSlateColor::UseStyle(); }

	// Input

	virtual bool SupportsKeyboardFocus() const { return false; }

	/** Something in it gets the focus. */
	virtual void OnFocusChanging(const TSharedRef<SWidget>& NewFocused, const FFocusEvent& InFocusEvent) {}
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent);
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) {}
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent);
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnTextComposition(const FGeometry& MyGeometry, const FTextCompositionEvent& InEvent);
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) {}
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) {}
	virtual void OnMouseCaptureLost() {}
	virtual FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const;

	/** Once per frame while in view, for classes that override it; such a widget keeps the frames coming. Times are in seconds. */
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) {}

protected:
	SWidget();

	/** What it wishes for in units. Children have their desired sizes. Not called for a collapsed widget. */
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const = 0;
	/** Prepasses the children by rules of its own, where it returns false. */
	virtual bool CustomPrepass(float LayoutScaleMultiplier) { return true; }

	/** Called when its size changed or its layout is invalid, before its children are placed. The only pass-time call that may invalidate.
	 */
	virtual void OnArranged(const FGeometry& AllottedGeometry) {}

	/** Adds each child that the list accepts, in the order they are drawn. */
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const = 0;

	/** Draws the widget and paints its children; reads only. Returns the highest layer used. */
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const = 0;

	/** What a child wishes for changed, or whether it takes room, or its slot. Null for a child without slot. */
	virtual void OnChildLayoutChanged(const FSlotBase* ChildSlot);

	/** Something in the tree of which this is the root needs a frame. */
	virtual void OnTreeInvalidated() {}

	/** A name for assistive technology where none was given. */
	virtual FText ComputeAccessibleText() const { return FText::GetEmpty(); }

	/** Paints those of the arranged children that can be seen. */
	int32 PaintArrangedChildren(const FPaintArgs& Args, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	bool ShouldBeEnabled(bool bParentEnabled) const { return bParentEnabled && IsEnabled(); }

private:
	friend class FSlateAttributeBase;
	friend class FSlateFocus;
	friend class FSlateFrame;
	friend class FSlateHitTest;
	friend class FSlateMouse;
	friend class FSlotBase;
	friend class FSlotlessChildren;
	template <class WidgetType>
	friend class TSlateDecl;

	/** What a chunk was painted with; while this and the look stay, the chunk stays. */
	struct FPaintKey
	{
		FGeometry Geometry;
		FSlateRect CullingRect;
		FWidgetStyle WidgetStyle;
		bool bParentEnabled = true;

		bool operator==(const FPaintKey&) const = default;
	};

	void AssignParent(SWidget& NewParent, FSlotBase* InSlot);
	void RemoveParent(const SWidget& OldParent);
	void ListInParent();
	void MarkLayout(bool bSizeToo);
	void MarkPaint() const;
	void NoteWantsFrames();
	void PrepassChildren(float LayoutScaleMultiplier, bool bAll);
	TArray<TSharedPtr<SWidget>> TakeUnsettledChildren();
	void ArrangeOwnChildren(bool bPlaceAll, const TOptional<FVector2D>& FormerSize);
	static void PlaceChildren(const FArrangedChildren& NewArranged);
	FSlateRect ClipToSelf(const FSlateRect& Rect) const;

	SWidget* Parent = nullptr;
	FSlotBase* AssignedSlot = nullptr;
	const TCHAR* CreatedAs = TEXT("SWidget");
	FName Tag;

	/** Before the attributes, which leave it as they go. */
	TArray<FSlateAttributeBase*> BoundAttributes;
	TSlateAttribute<EVisibility, EInvalidateWidgetReason::Visibility> VisibilityAttribute;
	TSlateAttribute<bool, EInvalidateWidgetReason::Paint> EnabledAttribute;
	TSlateAttribute<TOptional<FSlateRenderTransform>, EInvalidateWidgetReason::RenderTransform> RenderTransformAttribute;
	TSlateAttribute<FVector2D, EInvalidateWidgetReason::RenderTransform> RenderTransformPivotAttribute;
	TSlateAttribute<FText, EInvalidateWidgetReason::None> ToolTipTextAttribute;
	TSlateAttribute<FText, EInvalidateWidgetReason::None> AccessibleTextAttribute;
	TOptional<EMouseCursor::Type> Cursor;
	EWidgetClipping Clipping = EWidgetClipping::Inherit;

	FVector2D DesiredSize = FVector2D(0.0, 0.0);
	float PrepassScale = 0.0f;
	FGeometry CachedGeometry;
	FSlateRect CachedViewRect;
	FArrangedChildren Arranged;

	/** Children in which something is left to lay out. */
	TArray<TWeakPtr<SWidget>> UnsettledChildren;

	/** Children that may appear by a bound visibility although they are not arranged. */
	TArray<TWeakPtr<SWidget>> BoundVisibilityChildren;

	mutable TSharedPtr<const FSlateDrawChunk> Chunk;
	mutable FPaintKey PaintKey;
	uint64 AttributesReadInFrame = 0;

	/** Pending: here or below. Own: here. */
	bool bSizePending = true;
	bool bDesiredSizeAssumed = false;
	bool bOwnSizeStale = true;
	bool bArrangePending = true;
	bool bOwnArrangeStale = true;
	bool bListedInParent = false;
	bool bHasGeometry = false;
	mutable bool bPaintPending = true;
	/** Here or below are bound attributes, or a widget that ticks. */
	bool bWantsFrames = false;
	bool bCanTick = false;
	bool bIsHovered = false;

protected:
	/** Stands in many places at once, so it belongs to none. */
	bool bKnowsNoParent = false;
};

/** Whether a class inherits SWidget's own, empty Tick. An override may be private, which then cannot be named here. */
template <class WidgetType>
concept CWidgetWithoutTick = requires
{
	requires std::is_same_v<decltype(&WidgetType::Tick), void (SWidget::*)(const FGeometry&, const double, const float)>;
};

/** The left side of SNew. */
template <class WidgetType>
class TSlateDecl
{
public:
	explicit TSlateDecl(const TCHAR* TypeName)
		: Widget(MakeShared<WidgetType>())
	{
		SWidget& Base = *Widget;
		Base.CreatedAs = TypeName;
		Base.bCanTick = !CWidgetWithoutTick<WidgetType>;
	}

	template <class PointerType>
	TSlateDecl& Expose(PointerType& OutPointer)
	{
		OutPointer = Widget;
		return *this;
	}

	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& Args)
	{
		SWidget& Base = *Widget;
		Base.SWidgetConstruct(Args);
		Widget->Construct(Args);
		return Widget;
	}

private:
	TSharedRef<WidgetType> Widget;
};

template <class WidgetType>
TSlateDecl<WidgetType> MakeSlateDecl(const TCHAR* TypeName)
{
	return TSlateDecl<WidgetType>(TypeName);
}
