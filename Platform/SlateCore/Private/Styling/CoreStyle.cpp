// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/CoreStyle.h"

#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "EditorTheme.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateTypes.h"

namespace
{
class FControlStyle : public FSlateStyleSet
{
public:
	FControlStyle();
	~FControlStyle() override { FSlateStyleRegistry::UnRegisterSlateStyle(*this); }

private:
	void SetText();
	void SetButton();
	void SetScrollBar();
	void SetComboBoxRow();
};
} // namespace

FControlStyle::FControlStyle()
	: FSlateStyleSet(FName(TEXT("CoreStyle")))
{
	SetText();
	SetButton();
	SetScrollBar();
	SetComboBoxRow();
	FSlateStyleRegistry::RegisterSlateStyle(*this);
}

void FControlStyle::SetText()
{
	FTextBlockStyle NormalText;
	NormalText.SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 10.0f))
		.SetColorAndOpacity(FSlateColor::UseForeground())
		.SetSelectedBackgroundColor(EditorTheme::FromScreen(EditorTheme::Selection));
	Set(TEXT("NormalText"), NormalText);
}

void FControlStyle::SetButton()
{
	FButtonStyle Button;
	Button.SetNormal(FSlateRoundedBoxBrush(EditorTheme::FromScreen(EditorTheme::Secondary), 4.0f))
		.SetHovered(FSlateRoundedBoxBrush(EditorTheme::FromScreen(EditorTheme::Hover), 4.0f))
		.SetPressed(FSlateRoundedBoxBrush(EditorTheme::FromScreen(EditorTheme::Hover2), 4.0f))
		.SetDisabled(FSlateRoundedBoxBrush(EditorTheme::FromScreen(EditorTheme::Dropdown), 4.0f))
		.SetNormalForeground(EditorTheme::FromScreen(EditorTheme::White))
		.SetHoveredForeground(EditorTheme::FromScreen(EditorTheme::White))
		.SetPressedForeground(EditorTheme::FromScreen(EditorTheme::White))
		.SetDisabledForeground(EditorTheme::FromScreen(EditorTheme::Foreground))
		.SetNormalPadding(FMargin(12.0f, 4.0f))
		.SetPressedPadding(FMargin(12.0f, 4.0f));
	Set(TEXT("Button"), Button);
}

void FControlStyle::SetScrollBar()
{
	const auto MakeThumb = [](uint32 Digits)
	{
		return FSlateRoundedBoxBrush(EditorTheme::FromScreen(Digits), 4.0f);
	};
	FScrollBarStyle ScrollBar;
	ScrollBar.SetVerticalBackgroundImage(FSlateNoResource())
		.SetNormalThumbImage(MakeThumb(EditorTheme::Hover2))
		.SetHoveredThumbImage(MakeThumb(EditorTheme::ThumbHover))
		.SetDraggedThumbImage(MakeThumb(EditorTheme::Foreground))
		.SetThickness(8.0f);
	Set(TEXT("ScrollBar"), ScrollBar);
}

void FControlStyle::SetComboBoxRow()
{
	const auto MakeBrush = [](uint32 Digits)
	{
		return FSlateRoundedBoxBrush(EditorTheme::FromScreen(Digits), 2.0f);
	};
	FTableRowStyle Row;
	Row.SetActiveBrush(MakeBrush(EditorTheme::Selection))
		.SetActiveHoveredBrush(MakeBrush(EditorTheme::SelectionHover))
		.SetInactiveHoveredBrush(MakeBrush(EditorTheme::Secondary));
	Set(TEXT("ComboBox.Row"), Row);
}

const ISlateStyle& FCoreStyle::Get()
{
	static const FControlStyle Style;
	return Style;
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(const FName& InTypefaceFontName, float InSize, const FFontOutlineSettings& InOutlineSettings)
{
	return FSlateFontInfo(InTypefaceFontName, InSize, InOutlineSettings);
}
