// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Input/SComboBoxBase.h"

#include "Framework/Application/SlateApplication.h"
#include "Styling/AppStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SComboList.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"

namespace
{
/** In units. */
constexpr float MaxListHeight = 450.0f;
} // namespace

// clang-format off
void SComboBoxBase::ConstructButton(const FComboBoxStyle* InStyle, const FButtonStyle* ButtonStyle, const TOptional<FMargin>& ContentPadding,
	const TSharedRef<SWidget>& Content)
{
	Style = InStyle != nullptr ? InStyle : &FAppStyle::Get().GetWidgetStyle<FComboBoxStyle>(TEXT("SimpleComboBox"));
	SButton::Construct(
		SButton::FArguments()
		.ButtonStyle(ButtonStyle != nullptr ? ButtonStyle : &Style->ComboButtonStyle.ButtonStyle)
		.ContentPadding(ContentPadding.Get(Style->ContentPadding))
		.VAlign(VAlign_Center)
		.OnClicked(this, &SComboBoxBase::HandleButtonClicked)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.FillWidth(1.0f)
			.VAlign(VAlign_Center)
			[
				// Text that is too long ends before the arrow.
				SNew(SBox)
				.Clipping(EWidgetClipping::ClipToBounds)
				[
					Content
				]
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			.Padding(Style->ComboButtonStyle.DownArrowPadding)
			[
				SNew(SImage)
				.Image(&Style->ComboButtonStyle.DownArrowImage)
				.ColorAndOpacity(FSlateColor::UseForeground())
			]
		]);
}

void SComboBoxBase::Open()
{
	const TSharedPtr<SWindow> Window = FSlateApplication::Get().FindWidgetWindow(AsShared());
	if (!Window.IsValid() || IsOpen())
	{
		return;
	}
	const TSharedRef<SComboList> Opened =
		SNew(SComboList)
		.Owner(SharedThis(this))
		.RowPadding(Style->MenuRowPadding)
		.MaxHeight(MaxListHeight);
	List = Opened;
	const TSharedRef<SWidget> Popup =
		SNew(SBorder)
		.BorderImage(&Style->ComboButtonStyle.MenuBorderBrush)
		.Padding(Style->ComboButtonStyle.MenuBorderPadding)
		[
			Opened
		];
	Window->OpenPopup(AsShared(), Popup, FSimpleDelegate::CreateSP(this, &SComboBoxBase::HandleListClosed));
	FSlateApplication::Get().SetKeyboardFocus(Opened);
}
// clang-format on

void SComboBoxBase::Close()
{
	const TSharedPtr<SWindow> Window = FSlateApplication::Get().FindWidgetWindow(AsShared());
	if (Window.IsValid() && IsOpen())
	{
		Window->ClosePopup();
	}
}

FReply SComboBoxBase::HandleButtonClicked()
{
	Open();
	return FReply::Handled();
}

void SComboBoxBase::HandleListClosed()
{
	List.Reset();
}

void SComboBoxBase::ChooseOption(int32 Index, ESelectInfo::Type SelectInfo)
{
	Close();
	SelectOption(Index, SelectInfo);
}

void SComboBoxBase::RefreshList()
{
	if (const TSharedPtr<SComboList> Opened = List.Pin())
	{
		Opened->Refresh();
	}
}

FReply SComboBoxBase::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const bool bOpens = InKeyEvent.GetKey() == EKeys::Up || InKeyEvent.GetKey() == EKeys::Down;
	if (!bOpens || InKeyEvent.GetModifierKeys().AnyModifiersDown())
	{
		return SButton::OnKeyDown(MyGeometry, InKeyEvent);
	}
	Open();
	return FReply::Handled();
}
