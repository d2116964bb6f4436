// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SNotification.h"

#include "Editor.h"
#include "HAL/PlatformProcess.h"
#include "Styling/AppStyle.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

namespace
{

const FSlateBrush* GetBackgroundBrush(const FString& ColorWord)
{
	return FVorelAIStyle::Get().GetBrush(FName(*FString::Printf(TEXT("VorelAI.Background.%s"), *ColorWord)));
}

FSlateColor GetWhite()
{
	return FVorelAIStyle::Get().GetSlateColor("VorelAI.Color.White");
}

TSharedRef<STextBlock> MakeButtonCaption(const FText& Caption)
{
	return SNew(STextBlock)
		.Text(Caption)
		.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"))
		.ColorAndOpacity(GetWhite());
}

} // namespace

void SNotification::Construct(const FArguments& InArgs)
{
	Args = InArgs;
	Initialize();
	ChildSlot[ConstructInterface()];
	Hide();
}

void SNotification::Initialize()
{
	Title = Args._Title;
	Message = Args._Message;
	AutoHideDelay = Args._AutoHideDelay;
}

// clang-format off
TSharedRef<SWidget> SNotification::ConstructInterface()
{
	return SNew(SOverlay)
		+ SOverlay::Slot()
		.HAlign(HAlign_Fill)
		.VAlign(VAlign_Top)
		[
			ConstructNotificationBox()
		]
		+ SOverlay::Slot()
		.HAlign(HAlign_Right)
		.VAlign(VAlign_Center)
		.Padding(0.0f, 0.0f, 15.0f, 0.0f)
		[
			ConstructCloseButton()
		];
}

TSharedRef<SWidget> SNotification::ConstructNotificationBox()
{
	return SNew(SBox)
		.MinDesiredWidth(300.0f)
		.MaxDesiredWidth(FOptionalSize())
		.MinDesiredHeight(45.0f)
		.MaxDesiredHeight(200.0f)
		[
			SAssignNew(NotificationBorder, SBorder)
			.BorderImage(GetBackgroundBrush(Color))
			.Padding(FMargin(20.0f, 10.0f, 40.0f, 10.0f))
			.HAlign(HAlign_Center)
			.VAlign(VAlign_Center)
			[
				ConstructNotificationContent()
			]
		];
}

TSharedRef<SWidget> SNotification::ConstructNotificationContent()
{
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		.HAlign(HAlign_Fill)
		.VAlign(VAlign_Center)
		[
			ConstructNotificationText()
		];
}

TSharedRef<SWidget> SNotification::ConstructNotificationText()
{
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.HAlign(HAlign_Right)
		[
			ConstructNotificationIcon()
		]
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		[
			SNew(SBox)
			.MaxDesiredWidth(800.0f)
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				.Padding(0.0f, 0.0f, 5.0f, 0.0f)
				[
					ConstructNotificationTitle()
				]
				+ SHorizontalBox::Slot()
				.FillWidth(1.0f)
				.VAlign(VAlign_Center)
				[
					ConstructNotificationMessage()
				]
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.VAlign(VAlign_Center)
				.Padding(5.0f, 0.0f, 0.0f, 0.0f)
				[
					ConstructURLButton()
				]
			]
		];
}

TSharedRef<SWidget> SNotification::ConstructNotificationIcon()
{
	return SNew(SBox)
		.WidthOverride(24.0f)
		.HeightOverride(24.0f)
		.HAlign(HAlign_Center)
		.VAlign(VAlign_Center)
		.Padding(FMargin(0.0f, 0.0f, 5.0f, 0.0f))
		[
			SAssignNew(NotificationIcon, SImage)
			.Image(FAppStyle::Get().GetBrush("Symbols.Check"))
			.ColorAndOpacity(GetWhite())
			.RenderTransformPivot(FVector2D(0.5, 0.5))
			.RenderTransform_Lambda([] { return TOptional<FSlateRenderTransform>(FSlateRenderTransform()); })
		];
}

TSharedRef<SWidget> SNotification::ConstructNotificationTitle()
{
	return SAssignNew(NotificationTitle, STextBlock)
		.Text(Title)
		.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.BodyBold"))
		.ColorAndOpacity(GetWhite())
		.WrapTextAt(400.0f)
		.Justification(ETextJustify::Left);
}

TSharedRef<SWidget> SNotification::ConstructNotificationMessage()
{
	return SAssignNew(NotificationMessage, STextBlock)
		.Text(Message)
		.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"))
		.ColorAndOpacity(GetWhite())
		.WrapTextAt(400.0f)
		.AutoWrapText(true)
		.Justification(ETextJustify::Left);
}

TSharedRef<SWidget> SNotification::ConstructURLButton()
{
	return SAssignNew(URLButton, SButton)
		.ButtonStyle(&FVorelAIStyle::Get().GetWidgetStyle<FButtonStyle>("VorelAI.Button.Primary"))
		.ContentPadding(FMargin(5.0f, 5.0f, 5.0f, 5.0f))
		[
			MakeButtonCaption(INVTEXT("Open URL"))
		];
}

TSharedRef<SWidget> SNotification::ConstructCloseButton()
{
	return SNew(SButton)
		.ButtonStyle(&FVorelAIStyle::Get().GetWidgetStyle<FButtonStyle>("VorelAI.Button.Transparent"))
		.OnClicked(this, &SNotification::OnCloseClicked)
		.ContentPadding(FMargin(4.0f, 4.0f, 4.0f, 4.0f))
		[
			SNew(SImage)
			.Image(FAppStyle::Get().GetBrush("Icons.X"))
			.ColorAndOpacity(GetWhite())
		];
}
// clang-format on

void SNotification::PushError(FString InTitle, FString InMessage)
{
	Push(TEXT("Error"), TEXT("VorelAI.Icon.Error"), InTitle, InMessage);
}

void SNotification::PushInfo(FString InTitle, FString InMessage)
{
	Push(TEXT("Info"), TEXT("VorelAI.Icon.Info"), InTitle, InMessage);
}

void SNotification::PushSuccess(FString InTitle, FString InMessage)
{
	Push(TEXT("Success"), TEXT("VorelAI.Icon.Success"), InTitle, InMessage);
}

void SNotification::PushError(FString InTitle, FString InMessage, FString URL, FString URLText)
{
	PushWithURL(TEXT("Error"), TEXT("VorelAI.Icon.Error"), InTitle, InMessage, URL, URLText);
}

void SNotification::PushInfo(FString InTitle, FString InMessage, FString URL, FString URLText)
{
	PushWithURL(TEXT("Info"), TEXT("VorelAI.Icon.Info"), InTitle, InMessage, URL, URLText);
}

void SNotification::PushSuccess(FString InTitle, FString InMessage, FString URL, FString URLText)
{
	PushWithURL(TEXT("Success"), TEXT("VorelAI.Icon.Success"), InTitle, InMessage, URL, URLText);
}

void SNotification::Push(const FString& ColorWord, const FString& IconName, const FString& InTitle, const FString& InMessage)
{
	if (URLButton)
	{
		URLButton->SetVisibility(EVisibility::Collapsed);
	}
	ShowContent(ColorWord, IconName, InTitle, InMessage);
}

void SNotification::PushWithURL(const FString& ColorWord, const FString& IconName, const FString& InTitle, const FString& InMessage,
	const FString& URL, const FString& URLText)
{
	if (URLButton)
	{
		URLButton->SetVisibility(EVisibility::Visible);
	}
	SetURL(URL);
	SetURLText(URLText);
	ShowContent(ColorWord, IconName, InTitle, InMessage);
}

void SNotification::ShowContent(const FString& ColorWord, const FString& IconName, const FString& InTitle, const FString& InMessage)
{
	SetColor(ColorWord);
	SetIcon(IconName);
	SetNotificationContent(FText::FromString(InTitle), FText::FromString(InMessage));
	SetVisibility(EVisibility::Visible);
	StartAutoHideTimer();
}

void SNotification::SetColor(FString NewColor)
{
	if (NotificationBorder)
	{
		Color = NewColor;
		NotificationBorder->SetBorderImage(GetBackgroundBrush(Color));
	}
}

void SNotification::SetIcon(FString StyleName)
{
	if (NotificationIcon)
	{
		NotificationIcon->SetImage(FVorelAIStyle::Get().GetBrush(FName(*StyleName)));
	}
}

void SNotification::SetNotificationContent(const FText& InTitle, const FText& InMessage)
{
	Title = InTitle;
	Message = InMessage;
	if (NotificationTitle)
	{
		NotificationTitle->SetText(Title);
	}
	if (NotificationMessage)
	{
		NotificationMessage->SetText(Message);
	}
}

void SNotification::SetURL(FString URL)
{
	if (URLButton)
	{
		URLButton->SetOnClicked(FOnClicked::CreateLambda(
			[URL]
			{
				FWindowsPlatformProcess::LaunchURL(*URL, nullptr, nullptr);
				return FReply::Handled();
			}));
	}
}

void SNotification::SetURLText(FString Caption)
{
	if (URLButton)
	{
		URLButton->SetContent(MakeButtonCaption(FText::FromString(Caption)));
	}
}

void SNotification::StartAutoHideTimer()
{
	if (AutoHideDelay <= 0.0f || GEditor == nullptr)
	{
		return;
	}
	// Weak, since the tab may be closed and its view replaced while the timer runs.
	const FTimerDelegate HideDelegate = FTimerDelegate::CreateSP(this, &SNotification::Hide);
	GEditor->GetTimerManager()->SetTimer(AutoHideTimerHandle, HideDelegate, AutoHideDelay, false, -1.0f);
}

void SNotification::Hide()
{
	SetVisibility(EVisibility::Collapsed);
	if (GEditor != nullptr)
	{
		GEditor->GetTimerManager()->ClearTimer(AutoHideTimerHandle);
	}
}

void SNotification::Show()
{
	SetVisibility(EVisibility::Visible);
	StartAutoHideTimer();
}

FReply SNotification::OnCloseClicked()
{
	Hide();
	return FReply::Handled();
}
