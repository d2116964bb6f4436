// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateWidgetStyle.h"

/** Declares what every widget style has, and the chained setters. */
#define SLATE_STYLE_TYPE(StyleType)                                                                                                        \
	static const FName TypeName;                                                                                                           \
	static const StyleType& GetDefault();                                                                                                  \
	virtual const FName GetTypeName() const override                                                                                       \
	{                                                                                                                                      \
		return TypeName;                                                                                                                   \
	}

#define SLATE_STYLE_FIELD(StyleType, FieldType, Name)                                                                                      \
	FieldType Name;                                                                                                                        \
	StyleType& Set##Name(const FieldType& In##Name)                                                                                        \
	{                                                                                                                                      \
		Name = In##Name;                                                                                                                   \
		return *this;                                                                                                                      \
	}

struct FTextBlockStyle : public FSlateWidgetStyle
{
	FTextBlockStyle();
	SLATE_STYLE_TYPE(FTextBlockStyle)

	SLATE_STYLE_FIELD(FTextBlockStyle, FSlateFontInfo, Font)
	SLATE_STYLE_FIELD(FTextBlockStyle, FSlateColor, ColorAndOpacity)
	/** In units; zero means no shadow. */
	SLATE_STYLE_FIELD(FTextBlockStyle, FVector2D, ShadowOffset)
	SLATE_STYLE_FIELD(FTextBlockStyle, FLinearColor, ShadowColorAndOpacity)
	SLATE_STYLE_FIELD(FTextBlockStyle, FSlateColor, SelectedBackgroundColor)
	SLATE_STYLE_FIELD(FTextBlockStyle, FSlateColor, HighlightColor)
	SLATE_STYLE_FIELD(FTextBlockStyle, FSlateBrush, HighlightShape)
	/** A brush that draws nothing means no line. */
	SLATE_STYLE_FIELD(FTextBlockStyle, FSlateBrush, StrikeBrush)
	SLATE_STYLE_FIELD(FTextBlockStyle, FSlateBrush, UnderlineBrush)

	bool operator==(const FTextBlockStyle& Other) const;
};

struct FButtonStyle : public FSlateWidgetStyle
{
	FButtonStyle();
	SLATE_STYLE_TYPE(FButtonStyle)

	SLATE_STYLE_FIELD(FButtonStyle, FSlateBrush, Normal)
	SLATE_STYLE_FIELD(FButtonStyle, FSlateBrush, Hovered)
	SLATE_STYLE_FIELD(FButtonStyle, FSlateBrush, Pressed)
	SLATE_STYLE_FIELD(FButtonStyle, FSlateBrush, Disabled)
	SLATE_STYLE_FIELD(FButtonStyle, FSlateColor, NormalForeground)
	SLATE_STYLE_FIELD(FButtonStyle, FSlateColor, HoveredForeground)
	SLATE_STYLE_FIELD(FButtonStyle, FSlateColor, PressedForeground)
	SLATE_STYLE_FIELD(FButtonStyle, FSlateColor, DisabledForeground)
	SLATE_STYLE_FIELD(FButtonStyle, FMargin, NormalPadding)
	SLATE_STYLE_FIELD(FButtonStyle, FMargin, PressedPadding)
};

struct FCheckBoxStyle : public FSlateWidgetStyle
{
	FCheckBoxStyle();
	SLATE_STYLE_TYPE(FCheckBoxStyle)

	SLATE_STYLE_FIELD(FCheckBoxStyle, FSlateBrush, UncheckedImage)
	SLATE_STYLE_FIELD(FCheckBoxStyle, FSlateBrush, UncheckedHoveredImage)
	SLATE_STYLE_FIELD(FCheckBoxStyle, FSlateBrush, UncheckedPressedImage)
	SLATE_STYLE_FIELD(FCheckBoxStyle, FSlateBrush, CheckedImage)
	SLATE_STYLE_FIELD(FCheckBoxStyle, FSlateBrush, CheckedHoveredImage)
	SLATE_STYLE_FIELD(FCheckBoxStyle, FSlateBrush, CheckedPressedImage)
};

struct FComboButtonStyle : public FSlateWidgetStyle
{
	FComboButtonStyle();
	SLATE_STYLE_TYPE(FComboButtonStyle)

	SLATE_STYLE_FIELD(FComboButtonStyle, FButtonStyle, ButtonStyle)
	SLATE_STYLE_FIELD(FComboButtonStyle, FSlateBrush, DownArrowImage)
	SLATE_STYLE_FIELD(FComboButtonStyle, FSlateBrush, MenuBorderBrush)
	SLATE_STYLE_FIELD(FComboButtonStyle, FMargin, MenuBorderPadding)
	SLATE_STYLE_FIELD(FComboButtonStyle, FMargin, ContentPadding)
	SLATE_STYLE_FIELD(FComboButtonStyle, FMargin, DownArrowPadding)
};

struct FComboBoxStyle : public FSlateWidgetStyle
{
	FComboBoxStyle();
	SLATE_STYLE_TYPE(FComboBoxStyle)

	SLATE_STYLE_FIELD(FComboBoxStyle, FComboButtonStyle, ComboButtonStyle)
	SLATE_STYLE_FIELD(FComboBoxStyle, FMargin, ContentPadding)
	SLATE_STYLE_FIELD(FComboBoxStyle, FMargin, MenuRowPadding)
};

/** Behind the row of a list; a brush that draws nothing for the others. */
struct FTableRowStyle : public FSlateWidgetStyle
{
	FTableRowStyle();
	SLATE_STYLE_TYPE(FTableRowStyle)

	/** The selected row, and while it is highlighted. */
	SLATE_STYLE_FIELD(FTableRowStyle, FSlateBrush, ActiveBrush)
	SLATE_STYLE_FIELD(FTableRowStyle, FSlateBrush, ActiveHoveredBrush)
	/** The row that the keyboard or the mouse is at. */
	SLATE_STYLE_FIELD(FTableRowStyle, FSlateBrush, InactiveHoveredBrush)
};

struct FHyperlinkStyle : public FSlateWidgetStyle
{
	FHyperlinkStyle();
	SLATE_STYLE_TYPE(FHyperlinkStyle)

	SLATE_STYLE_FIELD(FHyperlinkStyle, FButtonStyle, UnderlineStyle)
	SLATE_STYLE_FIELD(FHyperlinkStyle, FTextBlockStyle, TextStyle)
	SLATE_STYLE_FIELD(FHyperlinkStyle, FMargin, Padding)
};

struct FScrollBarStyle : public FSlateWidgetStyle
{
	FScrollBarStyle();
	SLATE_STYLE_TYPE(FScrollBarStyle)

	SLATE_STYLE_FIELD(FScrollBarStyle, FSlateBrush, VerticalBackgroundImage)
	SLATE_STYLE_FIELD(FScrollBarStyle, FSlateBrush, NormalThumbImage)
	SLATE_STYLE_FIELD(FScrollBarStyle, FSlateBrush, HoveredThumbImage)
	SLATE_STYLE_FIELD(FScrollBarStyle, FSlateBrush, DraggedThumbImage)
	/** In units. */
	SLATE_STYLE_FIELD(FScrollBarStyle, float, Thickness)
};
