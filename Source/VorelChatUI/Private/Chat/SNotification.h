// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Input/Reply.h"
#include "TimerManager.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBorder;
class SButton;
class SImage;
class STextBlock;

// The toast of its owner: one banner that every push overwrites. It hides by itself after AutoHideDelay.
class VORELCHATUI_API SNotification : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SNotification)
		: _Title(FText::FromString(FString()))
		, _Message(FText::FromString(FString()))
		, _AutoHideDelay(10.0f)
	{
	}
	SLATE_ARGUMENT(FText, Title)
	SLATE_ARGUMENT(FText, Message)
	// In seconds. At zero or below the banner stays until it is closed by hand.
	SLATE_ARGUMENT(float, AutoHideDelay)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void PushError(FString InTitle, FString InMessage);
	void PushInfo(FString InTitle, FString InMessage);
	void PushSuccess(FString InTitle, FString InMessage);

	// With a button that opens URL in the browser.
	void PushError(FString InTitle, FString InMessage, FString URL, FString URLText);
	void PushInfo(FString InTitle, FString InMessage, FString URL, FString URLText);
	void PushSuccess(FString InTitle, FString InMessage, FString URL, FString URLText);

	void Initialize() override;
	TSharedRef<SWidget> ConstructInterface() override;

private:
	TSharedRef<SWidget> ConstructCloseButton();
	TSharedRef<SWidget> ConstructNotificationBox();
	TSharedRef<SWidget> ConstructNotificationContent();
	TSharedRef<SWidget> ConstructNotificationIcon();
	TSharedRef<SWidget> ConstructNotificationMessage();
	TSharedRef<SWidget> ConstructNotificationText();
	TSharedRef<SWidget> ConstructNotificationTitle();
	TSharedRef<SWidget> ConstructURLButton();

	void Push(const FString& ColorWord, const FString& IconName, const FString& InTitle, const FString& InMessage);
	void PushWithURL(const FString& ColorWord, const FString& IconName, const FString& InTitle, const FString& InMessage,
		const FString& URL, const FString& URLText);
	void ShowContent(const FString& ColorWord, const FString& IconName, const FString& InTitle, const FString& InMessage);

	void Hide();
	void Show();
	void StartAutoHideTimer();
	FReply OnCloseClicked();

	void SetColor(FString NewColor);
	void SetIcon(FString StyleName);
	void SetURL(FString URL);
	void SetURLText(FString Caption);
	void SetNotificationContent(const FText& InTitle, const FText& InMessage);

	FArguments Args;
	TSharedPtr<SBorder> NotificationBorder;
	TSharedPtr<SImage> NotificationIcon;
	TSharedPtr<STextBlock> NotificationTitle;
	TSharedPtr<STextBlock> NotificationMessage;
	TSharedPtr<SButton> URLButton;
	FText Title;
	FText Message;
	float AutoHideDelay = 0.0f;

	// The last part of a background's style name: "Error", "Info", "Success" or "Transparent".
	FString Color = TEXT("Transparent");
	FTimerHandle AutoHideTimerHandle;
};
