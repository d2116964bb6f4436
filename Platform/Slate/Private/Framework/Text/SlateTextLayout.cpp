// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/SlateTextLayout.h"

#include "Framework/Text/SlateTextRun.h"
#include "Layout/ArrangedChildren.h"
#include "RunLooks.h"
#include "Styling/SlateTypes.h"
#include "TextLine.h"
#include "Widgets/Text/TextVisibility.h"
#include "Widgets/SWidget.h"

TSharedRef<FSlateTextLayout> FSlateTextLayout::Create(SWidget& InOwner, const FTextBlockStyle& InDefaultTextStyle)
{
	return MakeShareable(new FSlateTextLayout(InOwner, InDefaultTextStyle));
}

FSlateTextLayout::FSlateTextLayout(SWidget& InOwner, const FTextBlockStyle& InDefaultTextStyle)
	: Children(InOwner)
	, DefaultTextStyle(RunLooks::Share(InDefaultTextStyle))
{
}

TSharedRef<IRun> FSlateTextLayout::CreateDefaultTextRun(const TSharedRef<FString>& NewText, const FTextRange& NewRange) const
{
	return FSlateTextRun::Create(FRunInfo(), NewText, DefaultTextStyle, NewRange);
}

void FSlateTextLayout::OnLinesChanged()
{
	TArray<FInlineWidget> Found;
	for (int32 Index = 0; Index < GetLines().Num(); ++Index)
	{
		FTextLine& Line = *GetLines()[Index];
		if (!Line.bHasWidgets.Get(true))
		{
			continue;
		}
		const int32 NumBefore = Found.Num();
		for (const TSharedRef<IRun>& Run : Line.Runs)
		{
			const TSharedRef<ISlateRun> SlateRun = StaticCastSharedRef<ISlateRun>(Run);
			if (SlateRun->GetWidget())
			{
				Found.Add({SlateRun, Index, SlateRun->GetWidget()->GetDesiredSize()});
			}
		}
		Line.bHasWidgets = Found.Num() > NumBefore;
	}
	if (Found.IsEmpty() && InlineWidgets.IsEmpty())
	{
		return;
	}
	InlineWidgets = MoveTemp(Found);
	Children.Empty();
	for (const FInlineWidget& Inline : InlineWidgets)
	{
		Children.Add(Inline.Run->GetWidget().ToSharedRef());
	}
}

void FSlateTextLayout::PrepassWidgets(float Scale)
{
	for (const FInlineWidget& Inline : InlineWidgets)
	{
		SWidget& Widget = *Inline.Run->GetWidget();
		const bool bAtLeisure = Widget.IsDesiredSizeAssumed() && Scale == GetScale();
		if (!bAtLeisure && Widget.GetVisibility() != EVisibility::Collapsed)
		{
			Widget.SlatePrepass(Scale);
		}
	}
}

void FSlateTextLayout::UpdateWidgetSizes()
{
	for (FInlineWidget& Inline : InlineWidgets)
	{
		const FVector2D Size = Inline.Run->GetWidget()->GetDesiredSize();
		if (Inline.MeasuredSize != Size)
		{
			Inline.MeasuredSize = Size;
			DirtyLine(Inline.LineIndex);
		}
	}
}

void FSlateTextLayout::ArrangeChildren(const FGeometry& TextGeometry, FArrangedChildren& ArrangedChildren) const
{
	const float Scale = TextGeometry.GetScale();
	const FSlateRect VisibleArea = FindVisibleArea(TextGeometry, ArrangedChildren.GetViewRect());
	TArray<FTextPiece> Pieces;
	ForEachVisibleLine(VisibleArea.Top, VisibleArea.Bottom,
		[&](const FTextLine& Line, const FWrappedLine& Wrapped, const FVector2D& TopLeft)
		{
			if (!Line.bHasWidgets.Get(false))
			{
				return;
			}
			GetPieces(Line, Wrapped, Pieces);
			for (const FTextPiece& Piece : Pieces)
			{
				const ISlateRun& Run = static_cast<const ISlateRun&>(*Line.Runs[Piece.RunIndex]);
				const TSharedPtr<SWidget> Widget = Run.GetWidget();
				if (Widget && ArrangedChildren.Accepts(Widget->GetVisibility()))
				{
					EnsureSize(*Widget, Scale);
					const FSlateRect Rect = Run.GetWidgetRect(MakePlacement(Piece, Wrapped, TopLeft), Scale);
					ArrangedChildren.AddWidget(
						TextGeometry.MakeChild(Widget.ToSharedRef(), Rect.GetTopLeft() / Scale, Rect.GetSize() / Scale));
				}
			}
		});
}

void FSlateTextLayout::EnsureSize(SWidget& Widget, float Scale)
{
	if (Widget.IsDesiredSizeAssumed())
	{
		const FVector2D Assumed = Widget.GetDesiredSize();
		Widget.SlatePrepass(Scale);
		if (Widget.GetDesiredSize() != Assumed)
		{
			Widget.GetParentWidget()->Invalidate(EInvalidateWidgetReason::Layout);
		}
	}
}

FRunPlacement FSlateTextLayout::MakePlacement(const FTextPiece& Piece, const FWrappedLine& Wrapped, const FVector2D& TopLeft) const
{
	FRunPlacement Placement;
	Placement.Range = Piece.Range;
	Placement.Context = MakeRunContext(GetTextShapingMethod(), Piece.Level);
	Placement.X = static_cast<float>(TopLeft.X) + Piece.X;
	Placement.Width = Piece.Width;
	Placement.LineHeight = static_cast<float>(Wrapped.Height);
	Placement.BaselineY = static_cast<float>(TopLeft.Y) + Wrapped.Ascent;
	return Placement;
}

void FSlateTextLayout::Paint(const FGeometry& TextGeometry, const FSlateRect& VisibleArea, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const
{
	TArray<FTextPiece> Pieces;
	ForEachVisibleLine(VisibleArea.Top, VisibleArea.Bottom,
		[&](const FTextLine& Line, const FWrappedLine& Wrapped, const FVector2D& TopLeft)
		{
			GetPieces(Line, Wrapped, Pieces);
			for (const FTextPiece& Piece : Pieces)
			{
				const double Left = TopLeft.X + Piece.X;
				if (Left < VisibleArea.Right && Left + Piece.Width > VisibleArea.Left)
				{
					const ISlateRun& Run = static_cast<const ISlateRun&>(*Line.Runs[Piece.RunIndex]);
					Run.OnPaint(MakePlacement(Piece, Wrapped, TopLeft), TextGeometry, OutDrawElements, LayerId, InWidgetStyle, DrawEffects);
				}
			}
		});
}
