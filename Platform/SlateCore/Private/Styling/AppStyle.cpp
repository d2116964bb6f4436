// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/AppStyle.h"

#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "EditorTheme.h"
#include "Misc/Paths.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateTypes.h"

namespace
{
class FEditorStyle : public FSlateStyleSet
{
public:
	FEditorStyle();
	~FEditorStyle() override;

private:
	void SetColors();
	void SetIcons();
	void SetButtons();
	void SetComboBox();
	void SetHyperlink();
};
} // namespace

FEditorStyle::FEditorStyle()
	: FSlateStyleSet(FAppStyle::GetAppStyleSetName())
{
	SetContentRoot(FPaths::EngineContentDir());
	SetColors();
	SetIcons();
	SetButtons();
	SetComboBox();
	SetHyperlink();
	FSlateStyleRegistry::RegisterSlateStyle(*this);
}

FEditorStyle::~FEditorStyle()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*this);
}

void FEditorStyle::SetColors()
{
	const std::pair<const TCHAR*, uint32> Colors[] = {
		{TEXT("Colors.Black"), EditorTheme::Black},
		{TEXT("Colors.White"), EditorTheme::White},
		{TEXT("Colors.Background"), EditorTheme::AccentBlack},
		{TEXT("Colors.Header"), EditorTheme::Header},
		{TEXT("Colors.Dropdown"), EditorTheme::Dropdown},
		{TEXT("Colors.Primary"), EditorTheme::Primary},
		{TEXT("Colors.PrimaryHover"), EditorTheme::PrimaryHover},
		{TEXT("Colors.PrimaryPress"), EditorTheme::PrimaryPress},
		{TEXT("Colors.Secondary"), EditorTheme::Secondary},
		{TEXT("Colors.Hover"), EditorTheme::Hover},
		{TEXT("Colors.Hover2"), EditorTheme::Hover2},
		{TEXT("Colors.Foreground"), EditorTheme::Foreground},
		{TEXT("Colors.ForegroundHover"), EditorTheme::ForegroundHover},
		{TEXT("Colors.ForegroundInverted"), EditorTheme::ForegroundInverted},
		{TEXT("Colors.AccentBlack"), EditorTheme::AccentBlack},
		{TEXT("Colors.AccentGray"), EditorTheme::AccentGray},
		{TEXT("Colors.AccentBlue"), EditorTheme::AccentBlue},
		{TEXT("Colors.AccentRed"), EditorTheme::AccentRed},
		{TEXT("Colors.AccentGreen"), EditorTheme::AccentGreen},
	};
	for (const auto& [Name, Digits] : Colors)
	{
		Set(Name, EditorTheme::FromScreen(Digits));
	}
}

void FEditorStyle::SetIcons()
{
	const std::pair<const TCHAR*, const TCHAR*> Icons[] = {
		{TEXT("Icons.ArrowRight"), TEXT("Icons/ArrowRight")},
		{TEXT("Icons.FilledCircle"), TEXT("Icons/FilledCircle")},
		{TEXT("Icons.Plus"), TEXT("Icons/Plus")},
		{TEXT("Icons.Delete"), TEXT("Icons/Delete")},
		{TEXT("Icons.X"), TEXT("Icons/X")},
		{TEXT("Icons.ChevronDown"), TEXT("Icons/ChevronDown")},
		{TEXT("GenericCommands.Copy"), TEXT("Icons/Copy")},
		{TEXT("Symbols.Check"), TEXT("Icons/Check")},
		{TEXT("ClassIcon.AIController"), TEXT("Icons/AIController")},
	};
	for (const auto& [Name, File] : Icons)
	{
		Set(Name, new FSlateVectorImageBrush(RootToContentDir(File, TEXT(".svg")), FVector2D(16.0, 16.0)));
	}
	Set(TEXT("DefaultTextUnderline"), new FSlateColorBrush(FLinearColor::White));
}

void FEditorStyle::SetButtons()
{
	FButtonStyle NoBorder;
	NoBorder.SetNormal(FSlateNoResource())
		.SetHovered(FSlateNoResource())
		.SetPressed(FSlateNoResource())
		.SetDisabled(FSlateNoResource())
		.SetNormalForeground(EditorTheme::FromScreen(EditorTheme::Foreground))
		.SetHoveredForeground(EditorTheme::FromScreen(EditorTheme::ForegroundHover))
		.SetPressedForeground(EditorTheme::FromScreen(EditorTheme::ForegroundHover))
		.SetDisabledForeground(EditorTheme::FromScreen(EditorTheme::Foreground));
	Set(TEXT("NoBorder"), NoBorder);

	FButtonStyle SimpleButton = NoBorder;
	SimpleButton.SetHovered(FSlateRoundedBoxBrush(EditorTheme::FromScreen(EditorTheme::Hover), 4.0f))
		.SetPressed(FSlateRoundedBoxBrush(EditorTheme::FromScreen(EditorTheme::Hover2), 4.0f))
		.SetNormalPadding(FMargin(4.0f))
		.SetPressedPadding(FMargin(4.0f));
	Set(TEXT("SimpleButton"), SimpleButton);
}

void FEditorStyle::SetComboBox()
{
	FComboButtonStyle ComboButton;
	ComboButton.SetButtonStyle(GetWidgetStyle<FButtonStyle>(TEXT("SimpleButton")))
		.SetDownArrowImage(FSlateVectorImageBrush(RootToContentDir(TEXT("Icons/ChevronDown"), TEXT(".svg")), FVector2D(12.0, 12.0)))
		.SetMenuBorderBrush(
			FSlateRoundedBoxBrush(EditorTheme::FromScreen(EditorTheme::Dropdown), 4.0f, EditorTheme::FromScreen(EditorTheme::Hover2), 1.0f))
		.SetMenuBorderPadding(FMargin(4.0f));
	FComboBoxStyle ComboBox;
	ComboBox.SetComboButtonStyle(ComboButton).SetMenuRowPadding(FMargin(8.0f, 4.0f, 8.0f, 4.0f));
	Set(TEXT("SimpleComboBox"), ComboBox);
}

void FEditorStyle::SetHyperlink()
{
	const FSlateColor Color = EditorTheme::FromScreen(EditorTheme::Primary);
	const FSlateBorderBrush Underline(
		RootToContentDir(TEXT("Old/HyperlinkUnderline"), TEXT(".png")), FMargin(0.0f, 0.0f, 0.0f, 3.0f / 16.0f), Color);
	FButtonStyle UnderlineStyle;
	UnderlineStyle.SetNormal(Underline).SetHovered(Underline).SetPressed(FSlateNoResource());
	FTextBlockStyle TextStyle;
	TextStyle.SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 10.0f)).SetColorAndOpacity(Color);
	FHyperlinkStyle Hyperlink;
	Hyperlink.SetUnderlineStyle(UnderlineStyle).SetTextStyle(TextStyle).SetPadding(FMargin(0.0f));
	Set(TEXT("Hyperlink"), Hyperlink);
}

const ISlateStyle& FAppStyle::Get()
{
	static const FEditorStyle Style;
	return Style;
}

const FName FAppStyle::GetAppStyleSetName()
{
	return FName(TEXT("EditorStyle"));
}
