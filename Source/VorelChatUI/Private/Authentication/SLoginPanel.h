// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Framework/ConstructableUI.h"
#include "Input/Reply.h"
#include "UObject/ObjectPtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SLoadingAnimation;
class SNotification;
class STextBlock;
class UAuthenticationService;

// What the tab shows to a signed-out user. It starts the sign-in and shows that it is under way; the service does the rest, and tells only
// that the sign-in has ended, not how.
class VORELCHATUI_API SLoginPanel : public SCompoundWidget, public ConstructableUI
{
public:
	SLATE_BEGIN_ARGS(SLoginPanel) {}
	SLATE_ARGUMENT(TObjectPtr<UAuthenticationService>, AuthService)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void Initialize() override;
	TSharedRef<SWidget> ConstructInterface() override;
	void RegisterEvents() override;

private:
	TSharedRef<SWidget> ConstructLogo();
	TSharedRef<SWidget> ConstructDescription();
	TSharedRef<SWidget> ConstructLoginButton();
	TSharedRef<SWidget> ConstructLegal();

	FReply OnLoginClicked();

	// The dots stand in for the caption of the button, which stays enabled: another click starts another sign-in.
	void SetLoading(bool bLoading);
	void StopLoading() { SetLoading(false); }

	FArguments Args;
	TObjectPtr<UAuthenticationService> AuthService;
	TSharedPtr<SNotification> Notification;
	TSharedPtr<SLoadingAnimation> LoadingAnimation;
	TSharedPtr<STextBlock> LoginButtonLabel;

	// A sign-in was started and has not ended.
	bool bIsLoading = false;
};
