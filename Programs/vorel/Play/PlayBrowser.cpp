// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayBrowser.h"

#include "Play/BrowserHand.h"
#include "Play/PlayActions.h"
#include "Play/PlayStage.h"
#include "Play/ScreenReport.h"
#include "Play/UserHand.h"
#include "Play/WidgetSearch.h"
#include "QSlateWidget.h"
#include "QtConversion.h"

static const TCHAR* const LoginCaption = TEXT("Log in");
static constexpr double Patience = 30.0;

namespace
{
class FLoginByHand
{
public:
	FLoginByHand(const FString& Name, const FString& Password)
		: Entries{{QStringLiteral("name"), ToQString(Name)}, {QStringLiteral("password"), ToQString(Password)}}
	{
	}

	FPlayResult GoOn(IPlayStage& Stage, double Seconds)
	{
		if (Stage.IsSignedIn())
		{
			return FPlayResult::Done();
		}
		if (!NumOpened)
		{
			return Begin(Stage);
		}
		const FString Problem = Seconds >= Patience ? FString(TEXT("nobody is signed in after 30 seconds")) : GoOnInBrowser(Stage);
		return Problem.IsEmpty() ? FPlayResult::NotYet() : FPlayResult::Fail(Problem + ReportScreen(Stage));
	}

private:
	FPlayResult Begin(IPlayStage& Stage)
	{
		if (Stage.GetTabContent() && !IsCaptionShown(Stage))
		{
			// Clicked before: the page may have been opened since, or will be.
			NumOpened = 0;
			return FPlayResult::NotYet();
		}
		NumOpened = Stage.GetOpenedAddresses().Num();
		const FPlayResult Clicked = PlayActions::Click(LoginCaption, NullOpt)(Stage, 0.0);
		return Clicked.State == FPlayResult::EState::Failed ? Clicked : FPlayResult::NotYet();
	}

	// Returns what went wrong, or nothing.
	FString GoOnInBrowser(IPlayStage& Stage)
	{
		const TArray<FString> Addresses = Stage.GetOpenedAddresses();
		if (!Hand && Addresses.Num() > *NumOpened && IsLoginPage(Addresses.Last()))
		{
			Hand = MakeUnique<FBrowserHand>(Addresses.Last(), Entries, FString());
		}
		if (Hand && Hand->GetOutcome() && !Hand->GetOutcome()->IsEmpty())
		{
			return *Hand->GetOutcome();
		}
		const bool bOver = Stage.IsPainted() && IsCaptionShown(Stage);
		return bOver ? TEXT("the login came to nothing; why stands in the log") : TEXT("");
	}

	// And no other page that was opened meanwhile.
	static bool IsLoginPage(const FString& Address) { return Address.Contains(TEXT("code_challenge=")); }

	// While a login is under way, dots stand in its place.
	static bool IsCaptionShown(IPlayStage& Stage)
	{
		const QSlateWidget* const Content = Stage.GetTabContent();
		return Content && !FWidgetSearch::FindText(*Content->GetWindow(), LoginCaption).IsEmpty();
	}

	QMap<QString, QString> Entries;
	TOptional<int32> NumOpened;
	TUniquePtr<FBrowserHand> Hand;
};
} // namespace

FPlayStep PlayBrowser::Login(const FString& Name, const FString& Password)
{
	return [Login = MakeShared<FLoginByHand>(Name, Password)](IPlayStage& Stage, double Seconds)
	{
		return Login->GoOn(Stage, Seconds);
	};
}

FPlayStep PlayBrowser::Press(const FString& Button)
{
	return [Button, Hand = TSharedPtr<FBrowserHand>()](IPlayStage& Stage, double Seconds) mutable
	{
		if (Seconds >= Patience)
		{
			return FPlayResult::Fail(TEXT("the browser is not done after 30 seconds"));
		}
		const TArray<FString> Addresses = Stage.GetOpenedAddresses();
		QSlateWidget* const Content = Stage.GetTabContent();
		if (Addresses.IsEmpty() || !Content)
		{
			return FPlayResult::Fail(TEXT("nothing was sent to the browser"));
		}
		if (!Hand)
		{
			Hand = MakeShared<FBrowserHand>(Addresses.Last(), QMap<QString, QString>(), Button);
		}
		if (!Hand->GetOutcome())
		{
			return FPlayResult::NotYet();
		}
		FUserHand(*Content).ComeBack();
		return Hand->GetOutcome()->IsEmpty() ? FPlayResult::Done() : FPlayResult::Fail(*Hand->GetOutcome());
	};
}
