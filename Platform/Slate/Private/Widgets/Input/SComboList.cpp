// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Input/SComboList.h"

#include "Framework/Application/SlateApplication.h"
#include "Layout/LayoutUtils.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/PrefixSearch.h"
#include "Widgets/Input/SComboBoxBase.h"
#include "Widgets/Input/SComboRow.h"
#include "Widgets/SNullWidget.h"

namespace
{
/** In units; also the height of a list without options. */
constexpr double MinRowHeight = 16.0;

FString FindFirstText(SWidget& Widget)
{
	FString Text = Widget.GetShownText();
	FChildren& Children = *Widget.GetChildren();
	for (int32 Index = 0; Text.IsEmpty() && Index < Children.Num(); ++Index)
	{
		Text = FindFirstText(*Children.GetChildAt(Index));
	}
	return Text;
}
} // namespace

SComboList::SComboList()
	: Rows(*this)
	, Bar(*this, FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>(TEXT("ScrollBar")))
{
}

SComboList::~SComboList() = default;

void SComboList::Construct(const FArguments& InArgs)
{
	Owner = InArgs._Owner;
	RowPadding = InArgs._RowPadding;
	MaxHeight = InArgs._MaxHeight;
	Search = MakeShared<FPrefixSearch>(FPrefixSearch::FReadOption::CreateSP(this, &SComboList::ReadOption),
		FPrefixSearch::FOnFound::CreateSP(this, &SComboList::HighlightByKey));
	Bar.SetLengths(0.0, MaxHeight);
	Refresh();
	Highlight(Selected);
	if (Selected != INDEX_NONE)
	{
		ScrollTo((Selected + 0.5) * GetRowHeight() - Bar.GetViewLength() / 2.0);
	}
}

void SComboList::Refresh()
{
	const TSharedPtr<SComboBoxBase> Box = Owner.Pin();
	NumOptions = Box.IsValid() ? Box->GetNumOptions() : 0;
	Selected = Box.IsValid() ? Box->FindSelectedOption() : INDEX_NONE;
	const int32 NumMoved = KeepHighlight();
	Pressed = INDEX_NONE;
	Search->Reset();
	while (Rows.Num() > 0)
	{
		DropRow(Rows.Num() - 1);
	}
	Bar.SetLengths(NumOptions * GetRowHeight(), Bar.GetViewLength());
	ScrollTo(Bar.GetOffset() + NumMoved * GetRowHeight());
	Invalidate(EInvalidateWidgetReason::Layout);
}

int32 SComboList::KeepHighlight()
{
	const TSharedPtr<SComboBoxBase> Box = Owner.Pin();
	const int32 Former = Highlighted;
	const int32 Found = Box.IsValid() && Former != INDEX_NONE ? Box->FindNotedOption() : INDEX_NONE;
	Highlighted = Found != INDEX_NONE ? Found : FMath::Min(Former, NumOptions - 1);
	if (Box.IsValid())
	{
		Box->NoteOption(Highlighted);
	}
	return Found != INDEX_NONE ? Found - Former : 0;
}

void SComboList::RefreshIfStale()
{
	const TSharedPtr<SComboBoxBase> Box = Owner.Pin();
	if (Box.IsValid() && Box->GetNumOptions() != NumOptions)
	{
		Refresh();
	}
}

double SComboList::GetRowHeight() const
{
	return FMath::Max(RowSize.Y, MinRowHeight);
}

void SComboList::Measure(const SWidget& Row)
{
	const double FormerHeight = GetRowHeight();
	const FVector2D& Wish = Row.GetDesiredSize();
	RowSize = FVector2D(FMath::Max(RowSize.X, Wish.X), FMath::Max(RowSize.Y, Wish.Y));
	if (GetRowHeight() != FormerHeight)
	{
		Bar.SetLengths(NumOptions * GetRowHeight(), Bar.GetViewLength());
		Bar.SetOffset(Bar.GetOffset() / FormerHeight * GetRowHeight());
	}
}

void SComboList::MakeRowsInView()
{
	const auto GetFirst = [this]
	{
		return FMath::Min(FMath::FloorToInt(Bar.GetOffset() / GetRowHeight()), NumOptions);
	};
	const auto GetEnd = [this]
	{
		return FMath::Min(FMath::CeilToInt((Bar.GetOffset() + Bar.GetViewLength()) / GetRowHeight()), NumOptions);
	};
	while (Rows.Num() > 0 && FirstRow + Rows.Num() > GetEnd())
	{
		DropRow(Rows.Num() - 1);
	}
	while (Rows.Num() > 0 && FirstRow < GetFirst())
	{
		DropRow(0);
		++FirstRow;
	}
	FirstRow = Rows.Num() > 0 ? FirstRow : GetFirst();
	while (FirstRow > GetFirst())
	{
		const TSharedRef<SComboRow> Row = MakeRow(--FirstRow);
		Rows.AddSlot(MakeUnique<FBasicLayoutSlot>(), 0).AttachWidget(Row);
	}
	// A row that turns out to be higher than the others leaves room for fewer.
	while (FirstRow + Rows.Num() < GetEnd())
	{
		const TSharedRef<SComboRow> Row = MakeRow(FirstRow + Rows.Num());
		Rows.AddSlot(MakeUnique<FBasicLayoutSlot>()).AttachWidget(Row);
	}
}

TSharedRef<SComboRow> SComboList::MakeRow(int32 Index)
{
	const TSharedPtr<SComboBoxBase> Box = Owner.Pin();
	const TSharedRef<SWidget> Content = Box.IsValid() ? Box->MakeOptionWidget(Index) : SNullWidget::NullWidget;
	const bool bSelected = Index == Selected;
	// clang-format off
	const TSharedRef<SComboRow> Row =
		SNew(SComboRow)
		.Tag(bSelected ? FName(TEXT("selected")) : NAME_None)
		.IsSelected(bSelected)
		.OnChosen(FSimpleDelegate::CreateSP(this, &SComboList::Choose, Index, ESelectInfo::OnMouseClick))
		.Style(&FCoreStyle::Get().GetWidgetStyle<FTableRowStyle>(TEXT("ComboBox.Row")))
		.Padding(RowPadding)
		[
			Content
		];
	// clang-format on
	Row->SetHighlighted(Index == Highlighted);
	Row->SlatePrepass(Box.IsValid() ? Box->GetCachedGeometry().GetScale() : 1.0f);
	Measure(*Row);
	return Row;
}

void SComboList::DropRow(int32 Slot)
{
	const bool bHadFocus = GetRow(Slot).HasAnyUserFocusOrFocusedDescendants();
	Rows.RemoveAt(Slot);
	if (bHadFocus)
	{
		FSlateApplication::Get().SetKeyboardFocus(AsShared());
	}
}

SComboRow& SComboList::GetRow(int32 Slot) const
{
	return static_cast<SComboRow&>(*Rows[Slot].GetWidget());
}

void SComboList::ShowHighlight()
{
	for (int32 Slot = 0; Slot < Rows.Num(); ++Slot)
	{
		GetRow(Slot).SetHighlighted(FirstRow + Slot == Highlighted);
	}
}

void SComboList::ScrollTo(double Offset)
{
	Bar.SetOffset(Offset);
	MakeRowsInView();
}

void SComboList::ScrollIntoView(int32 Index)
{
	const double Top = Index * GetRowHeight();
	const double Least = Top + GetRowHeight() - Bar.GetViewLength();
	ScrollTo(FMath::Clamp(Bar.GetOffset(), FMath::Min(Least, Top), Top));
}

void SComboList::Highlight(int32 Index)
{
	if (Highlighted != Index)
	{
		Highlighted = Index;
		ShowHighlight();
		if (const TSharedPtr<SComboBoxBase> Box = Owner.Pin())
		{
			Box->NoteOption(Index);
		}
	}
}

void SComboList::HighlightByKey(int32 Index)
{
	Highlight(Index);
	ScrollIntoView(Index);
}

void SComboList::Choose(int32 Index, ESelectInfo::Type SelectInfo)
{
	const TSharedPtr<SComboBoxBase> Box = Owner.Pin();
	if (Box.IsValid() && Index >= 0 && Index < NumOptions)
	{
		Box->ChooseOption(Index, SelectInfo);
	}
}

FString SComboList::ReadOption(int32 Index) const
{
	if (Index >= FirstRow && Index < FirstRow + Rows.Num())
	{
		return FindFirstText(GetRow(Index - FirstRow));
	}
	const TSharedPtr<SComboBoxBase> Box = Owner.Pin();
	return Box.IsValid() && Index < Box->GetNumOptions() ? FindFirstText(*Box->MakeOptionWidget(Index)) : FString();
}

FVector2D SComboList::ComputeDesiredSize(float) const
{
	return FVector2D(RowSize.X + Bar.GetThickness(), FMath::Min(FMath::Max(NumOptions, 1) * GetRowHeight(), MaxHeight));
}

void SComboList::OnArranged(const FGeometry& AllottedGeometry)
{
	const float FormerThickness = Bar.GetThickness();
	const double FormerViewLength = Bar.GetViewLength();
	for (int32 Slot = 0; Slot < Rows.Num(); ++Slot)
	{
		Measure(GetRow(Slot));
	}
	Bar.SetLengths(NumOptions * GetRowHeight(), AllottedGeometry.GetLocalSize().Y);
	if (Bar.GetViewLength() < FormerViewLength && Highlighted != INDEX_NONE)
	{
		ScrollIntoView(Highlighted);
	}
	MakeRowsInView();
	if (Bar.GetThickness() != FormerThickness)
	{
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SComboList::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2D RowRoom(FMath::Max(0.0, AllottedGeometry.GetLocalSize().X - Bar.GetThickness()), GetRowHeight());
	for (int32 Slot = 0; Slot < Rows.Num(); ++Slot)
	{
		const double Top = (FirstRow + Slot) * GetRowHeight() - Bar.GetOffset();
		ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Rows[Slot].GetWidget(), FVector2D(0.0, Top), RowRoom));
	}
}

int32 SComboList::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const int32 MaxLayerId =
		SPanel::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	Bar.Paint(AllottedGeometry, OutDrawElements, MaxLayerId, InWidgetStyle);
	return MaxLayerId;
}
