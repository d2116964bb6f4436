// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Authentication/SLoginPanel.h"

#include "AuthenticationService.h"
#include "Chat/SLoadingAnimation.h"
#include "Chat/SNotification.h"
#include "HAL/PlatformProcess.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "VorelSettings.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SHyperlink.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "FVorelChatUI"

namespace
{

FText GetLoginButtonText()
{
	return LOCTEXT("LoginButtonText", "Log in");
}

// clang-format off
TSharedRef<SWidget> MakeSmallText(const FText& Text)
{
	return SNew(STextBlock)
		.Text(Text)
		.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.BodySmall"));
}

TSharedRef<SWidget> MakeLegalLink(const FText& Text, const FString& AppUrl, const TCHAR* Path)
{
	return SNew(SHyperlink)
		.Text(Text)
		.Style(&FVorelAIStyle::Get().GetWidgetStyle<FHyperlinkStyle>("VorelAI.Hyperlink.Small"))
		.OnNavigate_Lambda([AppUrl, Path] { FWindowsPlatformProcess::LaunchURL(*(AppUrl + Path), nullptr, nullptr); });
}
// clang-format on

} // namespace

// clang-format off
void SLoginPanel::Construct(const FArguments& InArgs)
{
	Args = InArgs;
	Initialize();
	// One after the other, since the slots of one expression may be built in any order.
	SAssignNew(Notification, SNotification);
	const TSharedRef<SWidget> Interface = ConstructInterface();
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			Notification.ToSharedRef()
		]
		+ SVerticalBox::Slot()
		.FillHeight(1.0f)
		[
			Interface
		]
	];
	RegisterEvents();
	Notification->PushSuccess(TEXT("Welcome to Vorel AI!"), TEXT("Please log in to continue."));
}
// clang-format on

void SLoginPanel::Initialize()
{
	AuthService = Args._AuthService;
}

// clang-format off
TSharedRef<SWidget> SLoginPanel::ConstructInterface()
{
	const FMargin RowPadding(0.0f, 25.0f, 0.0f, 25.0f);
	return SNew(SBorder)
		.BorderImage(FVorelAIStyle::Get().GetBrush("VorelAI.Background.Dark"))
		[
			SNew(SOverlay)
			+ SOverlay::Slot()
			.HAlign(HAlign_Center)
			.VAlign(VAlign_Center)
			[
				SNew(SBox)
				.MinDesiredWidth(420.0f)
				.MaxDesiredWidth(420.0f)
				.MaxDesiredHeight(550.0f)
				[
					SNew(SVerticalBox)
					+ SVerticalBox::Slot()
					.AutoHeight()
					.HAlign(HAlign_Center)
					.VAlign(VAlign_Center)
					.Padding(RowPadding)
					[
						SNew(STextBlock)
						.Text(LOCTEXT("WelcomeTo", "Welcome to"))
						.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Header"))
					]
					+ SVerticalBox::Slot()
					.AutoHeight()
					.HAlign(HAlign_Center)
					.VAlign(VAlign_Center)
					.Padding(RowPadding)
					[
						ConstructLogo()
					]
					+ SVerticalBox::Slot()
					.FillHeight(1.0f)
					.HAlign(HAlign_Fill)
					.VAlign(VAlign_Center)
					.Padding(RowPadding)
					[
						ConstructDescription()
					]
					+ SVerticalBox::Slot()
					.AutoHeight()
					.HAlign(HAlign_Center)
					.VAlign(VAlign_Center)
					.Padding(RowPadding)
					[
						ConstructLoginButton()
					]
					+ SVerticalBox::Slot()
					.AutoHeight()
					.HAlign(HAlign_Fill)
					.VAlign(VAlign_Center)
					.Padding(RowPadding)
					[
						ConstructLegal()
					]
				]
			]
		];
}

TSharedRef<SWidget> SLoginPanel::ConstructLogo()
{
	// Twice the size of the brush, which the image fills.
	return SNew(SBox)
		.WidthOverride(250.0f)
		.HeightOverride(52.5f)
		[
			SNew(SImage)
			.Image(FVorelAIStyle::Get().GetBrush("VorelAI.Logo.Small"))
		];
}

TSharedRef<SWidget> SLoginPanel::ConstructDescription()
{
	return SNew(STextBlock)
		.Text(LOCTEXT("YourIntelligentCompanion",
			"Your intelligent companion for Unreal Engine development. Streamline your workflow, enhance productivity, and unleash "
			"creativity with AI-powered assistance."))
		.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Body"))
		.AutoWrapText(true)
		.Justification(ETextJustify::Center);
}

TSharedRef<SWidget> SLoginPanel::ConstructLoginButton()
{
	return SNew(SBox)
		.WidthOverride(150.0f)
		.HeightOverride(50.0f)
		[
			SNew(SButton)
			.ButtonStyle(&FVorelAIStyle::Get().GetWidgetStyle<FButtonStyle>("VorelAI.Button.Primary"))
			.OnClicked(this, &SLoginPanel::OnLoginClicked)
			[
				SNew(SOverlay)
				+ SOverlay::Slot()
				.HAlign(HAlign_Center)
				.VAlign(VAlign_Center)
				[
					SAssignNew(LoginButtonLabel, STextBlock)
					.Text(GetLoginButtonText())
					.TextStyle(&FVorelAIStyle::Get().GetWidgetStyle<FTextBlockStyle>("VorelAI.Typography.Subheader"))
					.ColorAndOpacity(FVorelAIStyle::Get().GetSlateColor("VorelAI.Color.White"))
				]
				+ SOverlay::Slot()
				.HAlign(HAlign_Center)
				.VAlign(VAlign_Center)
				[
					SAssignNew(LoadingAnimation, SLoadingAnimation)
					.Speed(1.25f)
					.Size(9.0f)
					.Visibility(EVisibility::Collapsed)
				]
			]
		];
}

TSharedRef<SWidget> SLoginPanel::ConstructLegal()
{
	const FString AppUrl = UVorelSettings::Get()->GetAppUrl();
	// The first text does not end in a blank, unlike " and ", so its slot keeps one free.
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.HAlign(HAlign_Center)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.Padding(0.0f, 0.0f, 3.0f, 0.0f)
			[
				MakeSmallText(LOCTEXT("ByLoggingInYouAgreeToOur", "By logging in, you agree to our"))
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			[
				MakeLegalLink(LOCTEXT("TermsOfService", "Terms of Service"), AppUrl, TEXT("/tos"))
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			[
				MakeSmallText(LOCTEXT("And", " and "))
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			[
				MakeLegalLink(LOCTEXT("PrivacyPolicy", "Privacy Policy"), AppUrl, TEXT("/privacy"))
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			[
				MakeSmallText(LOCTEXT("Dot", "."))
			]
		]
		+ SVerticalBox::Slot()
		.HAlign(HAlign_Center)
		[
			MakeSmallText(LOCTEXT("VorelAIPrprocessesYourData", "Vorel AI processes your data to provide and improve our services."))
		];
}
// clang-format on

void SLoginPanel::RegisterEvents()
{
	if (IsValid(AuthService))
	{
		AuthService->OnAuthenticationStateChanged.AddSP(this, &SLoginPanel::StopLoading);
	}
}

FReply SLoginPanel::OnLoginClicked()
{
	if (IsValid(AuthService))
	{
		SetLoading(true);
		AuthService->StartLogin();
	}
	return FReply::Handled();
}

void SLoginPanel::SetLoading(bool bLoading)
{
	bIsLoading = bLoading;
	if (LoadingAnimation && LoginButtonLabel)
	{
		LoadingAnimation->SetVisibility(bIsLoading ? EVisibility::Visible : EVisibility::Collapsed);
		LoginButtonLabel->SetText(bIsLoading ? FText::GetEmpty() : GetLoginButtonText());
	}
}

#undef LOCTEXT_NAMESPACE
