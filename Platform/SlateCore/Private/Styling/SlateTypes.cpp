// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/SlateTypes.h"

#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "EditorTheme.h"

#define SLATE_DEFINE_STYLE_TYPE(StyleType)                                                                                                 \
	const FName StyleType::TypeName(TEXT("") #StyleType);                                                                                  \
	const StyleType& StyleType::GetDefault()                                                                                               \
	{                                                                                                                                      \
		static const StyleType Default;                                                                                                    \
		return Default;                                                                                                                    \
	}

SLATE_DEFINE_STYLE_TYPE(FTextBlockStyle)
SLATE_DEFINE_STYLE_TYPE(FButtonStyle)
SLATE_DEFINE_STYLE_TYPE(FCheckBoxStyle)
SLATE_DEFINE_STYLE_TYPE(FComboButtonStyle)
SLATE_DEFINE_STYLE_TYPE(FComboBoxStyle)
SLATE_DEFINE_STYLE_TYPE(FTableRowStyle)
SLATE_DEFINE_STYLE_TYPE(FHyperlinkStyle)
SLATE_DEFINE_STYLE_TYPE(FScrollBarStyle)

FTextBlockStyle::FTextBlockStyle()
	: ShadowOffset(0.0, 0.0)
	, ShadowColorAndOpacity(FLinearColor::Black)
	, SelectedBackgroundColor(EditorTheme::FromScreen(EditorTheme::Selection))
	, HighlightColor(FLinearColor::Black)
	, HighlightShape(FSlateNoResource())
	, StrikeBrush(FSlateNoResource())
	, UnderlineBrush(FSlateNoResource())
{
}

bool FTextBlockStyle::operator==(const FTextBlockStyle& Other) const
{
	return Font == Other.Font && ColorAndOpacity == Other.ColorAndOpacity && ShadowOffset == Other.ShadowOffset &&
		   ShadowColorAndOpacity == Other.ShadowColorAndOpacity && SelectedBackgroundColor == Other.SelectedBackgroundColor &&
		   HighlightColor == Other.HighlightColor && HighlightShape == Other.HighlightShape && StrikeBrush == Other.StrikeBrush &&
		   UnderlineBrush == Other.UnderlineBrush;
}

FButtonStyle::FButtonStyle()
	: Normal(FSlateNoResource())
	, Hovered(FSlateNoResource())
	, Pressed(FSlateNoResource())
	, Disabled(FSlateNoResource())
	, NormalForeground(FSlateColor::UseForeground())
	, HoveredForeground(FSlateColor::UseForeground())
	, PressedForeground(FSlateColor::UseForeground())
	, DisabledForeground(FSlateColor::UseForeground())
{
}

FCheckBoxStyle::FCheckBoxStyle()
	: UncheckedImage(FSlateNoResource())
	, UncheckedHoveredImage(FSlateNoResource())
	, UncheckedPressedImage(FSlateNoResource())
	, CheckedImage(FSlateNoResource())
	, CheckedHoveredImage(FSlateNoResource())
	, CheckedPressedImage(FSlateNoResource())
{
}

FComboButtonStyle::FComboButtonStyle()
	: DownArrowImage(FSlateNoResource())
	, MenuBorderBrush(FSlateNoResource())
{
}

FComboBoxStyle::FComboBoxStyle() = default;

FTableRowStyle::FTableRowStyle()
	: ActiveBrush(FSlateNoResource())
	, ActiveHoveredBrush(FSlateNoResource())
	, InactiveHoveredBrush(FSlateNoResource())
{
}

FHyperlinkStyle::FHyperlinkStyle() = default;

FScrollBarStyle::FScrollBarStyle()
	: VerticalBackgroundImage(FSlateNoResource())
	, NormalThumbImage(FSlateRoundedBoxBrush(FLinearColor(0.1f, 0.1f, 0.1f), 4.0f))
	, HoveredThumbImage(FSlateRoundedBoxBrush(FLinearColor(0.2f, 0.2f, 0.2f), 4.0f))
	, DraggedThumbImage(FSlateRoundedBoxBrush(FLinearColor(0.3f, 0.3f, 0.3f), 4.0f))
	, Thickness(9.0f)
{
}
