// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Text/SMultiLineEditableText.h"

#include "EditableTextController.h"
#include "EditableTextMouse.h"
#include "EditableTextPainter.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Text/PlainTextLayoutMarshaller.h"
#include "Framework/Text/TextLines.h"
#include "Styling/CoreStyle.h"
#include "TextWrapping.h"

namespace
{
constexpr TCHAR WidgetPlaceholder = 0x200B;

FTextBlockStyle FindTextStyle(const FTextBlockStyle* Style, const TOptional<FSlateFontInfo>& Font)
{
	FTextBlockStyle Result = Style ? *Style : FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText");
	if (Font.IsSet())
	{
		Result.Font = Font.GetValue();
	}
	return Result;
}

FEditableTextOptions MakeOptions(const SMultiLineEditableText::FArguments& InArgs)
{
	FEditableTextOptions Options;
	Options.IsReadOnly = InArgs._IsReadOnly;
	Options.bAllowMultiLine = InArgs._AllowMultiLine;
	Options.bClearSelectionOnFocusLoss = InArgs._ClearTextSelectionOnFocusLoss;
	Options.ModifierForNewLine = InArgs._ModiferKeyForNewLine;
	Options.OnTextChanged = InArgs._OnTextChanged;
	Options.OnTextCommitted = InArgs._OnTextCommitted;
	return Options;
}

/** `Area` is in device pixels of the text. */
FSlateRect ToAbsolute(const FGeometry& TextGeometry, const FSlateRect& Area)
{
	const double Scale = TextGeometry.GetScale();
	const FVector2D Begin = TextGeometry.LocalToAbsolute(Area.GetTopLeft() / Scale);
	const FVector2D End = TextGeometry.LocalToAbsolute(FVector2D(Area.Right, Area.Bottom) / Scale);
	return FSlateRect(static_cast<float>(Begin.X), static_cast<float>(Begin.Y), static_cast<float>(End.X), static_cast<float>(End.Y));
}
} // namespace

SMultiLineEditableText::SMultiLineEditableText()
	: TextAttribute(*this)
	, HintAttribute(*this)
{
}

SMultiLineEditableText::~SMultiLineEditableText()
{
	WithdrawInputArea();
}

void SMultiLineEditableText::Construct(const FArguments& InArgs)
{
	FTextBlockStyle Style = FindTextStyle(InArgs._TextStyle, InArgs._Font);
	TextLayout = MakeLayout(InArgs, Style);
	TextColor = Style.ColorAndOpacity;
	if (InArgs._HintText.IsSet())
	{
		Style.ColorAndOpacity = FSlateColor::UseSubduedForeground();
		HintLayout = MakeLayout(InArgs, Style);
	}

	const TSharedRef<ITextLayoutMarshaller> Marshaller =
		InArgs._Marshaller ? InArgs._Marshaller.ToSharedRef() : TSharedRef<ITextLayoutMarshaller>(FPlainTextLayoutMarshaller::Create());
	Controller = MakeUnique<FEditableTextController>(*this, TextLayout.ToSharedRef(), Marshaller, MakeOptions(InArgs));
	Mouse = MakeUnique<FEditableTextMouse>(*Controller);
	Wrapping = MakeUnique<FTextWrapping>(FTextWrapping{InArgs._WrapTextAt, InArgs._AutoWrapText});
	HintAttribute.Assign(*this, InArgs._HintText);
	TextAttribute.Assign(*this, InArgs._Text);
	SetClipping(EWidgetClipping::ClipToBounds);
}

TSharedRef<FSlateTextLayout> SMultiLineEditableText::MakeLayout(const FArguments& InArgs, const FTextBlockStyle& Style)
{
	const TSharedRef<FSlateTextLayout> Layout = FSlateTextLayout::Create(*this, Style);
	Layout->SetMargin(InArgs._Margin);
	Layout->SetJustification(InArgs._Justification);
	Layout->SetTextShapingMethod(InArgs._TextShapingMethod);
	return Layout;
}

void SMultiLineEditableText::SetText(const TAttribute<FText>& InText)
{
	TextAttribute.Assign(*this, InText);
	LaidOutText.Reset();
	ApplyText();
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SMultiLineEditableText::ApplyText() const
{
	if (!LaidOutText.IsSet() || !LaidOutText->EqualTo(TextAttribute.Get()))
	{
		LaidOutText = TextAttribute.Get();
		Controller->SetText(LaidOutText->ToString());
	}
}

FSlateTextLayout& SMultiLineEditableText::GetTextLayout() const
{
	ApplyText();
	return *TextLayout;
}

FEditableTextController& SMultiLineEditableText::GetController() const
{
	ApplyText();
	return *Controller;
}

void SMultiLineEditableText::ApplyHint() const
{
	if (!LaidOutHint.IsSet() || !LaidOutHint->EqualTo(HintAttribute.Get()))
	{
		LaidOutHint = HintAttribute.Get();
		HintLayout->ClearLines();
		HintLayout->AddLines(TextLines::MakePlainLines(LaidOutHint->ToString()));
	}
}

bool SMultiLineEditableText::IsTextReadOnly() const
{
	return Controller->IsReadOnly();
}

FText SMultiLineEditableText::GetText() const
{
	return Controller->IsReadOnly() ? TextAttribute.Get() : FText::FromString(GetController().GetText().GetText());
}

FText SMultiLineEditableText::GetPlainText() const
{
	FString Text;
	GetTextLayout().GetAsText(Text);
	return FText::FromString(Text);
}

FTextSelection SMultiLineEditableText::GetSelection() const
{
	return GetController().GetText().GetSelection();
}

FTextLocation SMultiLineEditableText::GetCursorLocation() const
{
	return GetController().GetText().GetCaret().Location;
}

FSlateRect SMultiLineEditableText::GetCharacterArea(const FTextLocation& Location) const
{
	const FGeometry TextGeometry = GetTextGeometry(GetCachedGeometry());
	const FSlateRect Caret = TextLayout->GetCaretRect({Location});
	TArray<FSlateRect> Areas;
	const FTextLocation Next(Location.GetLineIndex(), Location.GetOffset() + 1);
	TextLayout->GetSelectionRects(FTextSelection(Location, Next), Caret, Areas);
	return ToAbsolute(TextGeometry, Areas.IsEmpty() ? Caret : Areas[0]);
}

FTextLocation SMultiLineEditableText::GetCharacterAt(const FVector2D& AbsolutePosition) const
{
	const FGeometry& Geometry = GetCachedGeometry();
	return GetController().GetCharacterAt(Geometry.AbsoluteToLocal(AbsolutePosition) * Geometry.GetScale());
}

FString SMultiLineEditableText::GetShownText() const
{
	return GetPlainText().ToString().Replace(*FString::Chr(WidgetPlaceholder), TEXT(""), ESearchCase::CaseSensitive);
}

void SMultiLineEditableText::SetCaretBlinking(bool bEnabled)
{
	FCaretBlinker::SetEnabled(bEnabled);
}

bool SMultiLineEditableText::IsHintShown() const
{
	return HintLayout && GetController().GetText().IsEmpty() && !HintAttribute.Get().IsEmpty();
}

FChildren* SMultiLineEditableText::GetChildren()
{
	return &GetTextLayout().GetChildren();
}

bool SMultiLineEditableText::CustomPrepass(float LayoutScaleMultiplier)
{
	GetTextLayout().PrepassWidgets(LayoutScaleMultiplier);
	return false;
}

FVector2D SMultiLineEditableText::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	FSlateTextLayout& Layout = GetTextLayout();
	Layout.UpdateWidgetSizes();
	FVector2D Size = Wrapping->LayOut(Layout, LayoutScaleMultiplier);
	if (IsHintShown())
	{
		ApplyHint();
		const FVector2D HintSize = Wrapping->LayOut(*HintLayout, LayoutScaleMultiplier);
		Size = FVector2D(FMath::Max(Size.X, HintSize.X), FMath::Max(Size.Y, HintSize.Y));
	}
	return Size + FVector2D(GetCaretRoom(), 0.0);
}

float SMultiLineEditableText::GetCaretRoom() const
{
	return Controller->IsReadOnly() ? 0.0f : FEditableTextController::CaretWidth;
}

void SMultiLineEditableText::OnArranged(const FGeometry& AllottedGeometry)
{
	const float Width = static_cast<float>(AllottedGeometry.GetLocalSize().X) - GetCaretRoom();
	const float Scale = AllottedGeometry.GetScale();
	TextLayout->SetViewWidth(Width);
	if (HintLayout)
	{
		HintLayout->SetViewWidth(Width);
	}
	if (Wrapping->bAutoWrapText && Wrapping->AllottedWidth != Width)
	{
		Wrapping->AllottedWidth = Width;
		if (ComputeDesiredSize(Scale) != GetDesiredSize())
		{
			Invalidate(EInvalidateWidgetReason::Layout);
		}
	}
	Controller->SetSizes(AllottedGeometry.GetAbsoluteSize(), (TextLayout->GetSize() + FVector2D(GetCaretRoom(), 0.0)) * Scale);
}

FGeometry SMultiLineEditableText::GetTextGeometry(const FGeometry& AllottedGeometry) const
{
	// The tree may be asked where its widgets stand at any time, also between a change and the next frame.
	GetTextLayout().UpdateIfNeeded();
	const FVector2D Offset = Controller->GetScroller().GetOffset() / AllottedGeometry.GetScale();
	return AllottedGeometry.MakeChild(TextLayout->GetSize(), FSlateLayoutTransform(-Offset));
}

void SMultiLineEditableText::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	TextLayout->ArrangeChildren(GetTextGeometry(AllottedGeometry), ArrangedChildren);
}

int32 SMultiLineEditableText::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	FWidgetStyle WidgetStyle = InWidgetStyle;
	WidgetStyle.SetForegroundColor(TextColor.GetColor(InWidgetStyle));
	const FGeometry TextGeometry = GetTextGeometry(AllottedGeometry);
	const FEditableTextPainter Painter(GetController(), TextGeometry,
		MyCullingRect.IntersectionWith(AllottedGeometry.GetRenderBoundingRect()), OutDrawElements, WidgetStyle,
		bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect);
	Painter.PaintSelection(LayerId);
	Painter.PaintText(*TextLayout, LayerId + 1);
	if (IsHintShown())
	{
		Painter.PaintText(*HintLayout, LayerId + 1);
	}
	Painter.PaintComposition(LayerId + 2);
	Painter.PaintCaret(LayerId + 2);
	ReportInputArea(TextGeometry);
	return PaintArrangedChildren(Args, MyCullingRect, OutDrawElements, LayerId + 3, InWidgetStyle, bEnabled);
}

void SMultiLineEditableText::ReportInputArea(const FGeometry& TextGeometry) const
{
	if (!HasKeyboardFocus() || Controller->IsReadOnly())
	{
		return;
	}
	const FSlateRect Area = ToAbsolute(TextGeometry, Controller->GetCaretArea());
	if (!InputArea.IsSet() || InputArea.GetValue() != Area)
	{
		InputArea = Area;
		FSlateApplication::Get().SetTextInputArea(true, Area);
	}
}

void SMultiLineEditableText::WithdrawInputArea()
{
	if (InputArea.IsSet() && FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().SetTextInputArea(false, FSlateRect());
	}
	InputArea.Reset();
}

FReply SMultiLineEditableText::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	GetController().OnFocusReceived();
	return FReply::Handled();
}

void SMultiLineEditableText::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	WithdrawInputArea();
	GetController().OnFocusLost();
}

FReply SMultiLineEditableText::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	return GetController().OnKeyChar(InCharacterEvent);
}

FReply SMultiLineEditableText::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	return GetController().OnKeyDown(InKeyEvent);
}

FReply SMultiLineEditableText::OnTextComposition(const FGeometry& MyGeometry, const FTextCompositionEvent& InEvent)
{
	return GetController().OnTextComposition(InEvent);
}

FReply SMultiLineEditableText::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Mouse->OnMouseButtonDown(AsShared(), MyGeometry, MouseEvent);
}

FReply SMultiLineEditableText::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Mouse->OnMouseButtonUp(MouseEvent);
}

FReply SMultiLineEditableText::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Mouse->OnMouseButtonDoubleClick(AsShared(), MyGeometry, MouseEvent);
}

FReply SMultiLineEditableText::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Mouse->OnMouseMove(MyGeometry, MouseEvent);
}

FReply SMultiLineEditableText::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Mouse->OnMouseWheel(MouseEvent);
}

void SMultiLineEditableText::OnMouseCaptureLost()
{
	Mouse->EndDrag();
}

FCursorReply SMultiLineEditableText::OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const
{
	return FCursorReply::Cursor(EMouseCursor::TextEditBeam);
}
