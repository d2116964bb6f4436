// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Play/PlayActions.h"

#include "Framework/Application/SlateApplication.h"
#include "Play/MatchChoice.h"
#include "Play/PlayStage.h"
#include "Play/ScreenReport.h"
#include "Play/UserHand.h"
#include "QSlateWidget.h"
#include "QtConversion.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/WidgetTreeDump.h"

namespace
{
FPlayResult FailHere(IPlayStage& Stage, const FString& Problem)
{
	return FPlayResult::Fail(Problem + ReportScreen(Stage));
}

// Where to put the hand for a match; unset where it can't be put there.
using FGetPoint = TFunction<TOptional<FVector2D>(const FWidgetMatch& Match)>;
using FHandAction = TFunction<void(FUserHand& Hand, const QPointF& Point)>;

TOptional<FVector2D> GetMiddle(const FWidgetMatch& Match)
{
	return Match.Middle;
}

TOptional<FVector2D> GetMiddleOfVisible(const FWidgetMatch& Match)
{
	return Match.Visible.IsEmpty() ? TOptional<FVector2D>() : Match.Visible.GetTopLeft() + Match.Visible.GetSize() * 0.5;
}

struct FTarget
{
	// In the words of the play file.
	FString Text;
	TOptional<int32> Count;
	TFunction<ETextMatch(const SWidget& Widget)> Test;
	FGetPoint GetPoint = &GetMiddle;
};

FPlayResult ActAt(IPlayStage& Stage, const FTarget& Target, const FHandAction& Act)
{
	QSlateWidget* const Content = Stage.GetTabContent();
	if (!Content)
	{
		return FailHere(Stage, TEXT("there is nothing to act on"));
	}
	FString Problem;
	const TArray<FWidgetMatch> Matches = FWidgetSearch::Find(*Content->GetWindow(), Target.Test);
	const FWidgetMatch* const Match = ChooseMatch(
		Matches, Target.Count, [&Target](const FWidgetMatch& Candidate) { return Target.GetPoint(Candidate).IsSet(); }, Problem);
	if (!Match)
	{
		return FailHere(Stage, FWidgetTreeDump::Quote(Target.Text) + TEXT(": ") + Problem);
	}
	const FVector2D Point = *Target.GetPoint(*Match) / Content->GetWindow()->GetDPIScaleFactor();
	FUserHand Hand(*Content);
	Act(Hand, QPointF(Point.X, Point.Y));
	return FPlayResult::Done();
}

FTarget MakeTextTarget(const FString& Text, const TOptional<int32>& Count)
{
	return {Text, Count,
		[Text](const SWidget& Widget)
		{
			return FWidgetSearch::MatchText(Widget, Text);
		}};
}

ETextMatch MatchEditable(const SWidget& Widget, const FString& Text)
{
	const auto* const Editable = dynamic_cast<const SMultiLineEditableText*>(&Widget);
	if (!Editable || Editable->IsTextReadOnly())
	{
		return ETextMatch::None;
	}
	return Editable->GetHint().Contains(Text, ESearchCase::CaseSensitive) ? ETextMatch::Contained : FWidgetSearch::MatchText(Widget, Text);
}

FPlayStep ActAtStep(const FTarget& Target, const FHandAction& Act)
{
	return [Target, Act](IPlayStage& Stage, double)
	{
		return ActAt(Stage, Target, Act);
	};
}

// A step for the keyboard, which the tab must have.
FPlayStep WithKeyboard(const TFunction<FPlayResult(IPlayStage& Stage, FUserHand& Hand)>& Act)
{
	return [Act](IPlayStage& Stage, double)
	{
		QSlateWidget* const Content = Stage.GetTabContent();
		if (!Content)
		{
			return FailHere(Stage, TEXT("no widget gets the keys"));
		}
		FUserHand Hand(*Content);
		return Act(Stage, Hand);
	};
}
} // namespace

FPlayStep PlayActions::Open(const FString& Label)
{
	return [Label](IPlayStage& Stage, double)
	{
		FString Problem;
		return Stage.InvokeMenuEntry(Label, Problem) ? FPlayResult::Done() : FPlayResult::Fail(Problem);
	};
}

FPlayStep PlayActions::Focus(const FString& HintOrText)
{
	const FTarget Editable{HintOrText, NullOpt,
		[HintOrText](const SWidget& Widget)
		{
			return MatchEditable(Widget, HintOrText);
		}};
	return ActAtStep(Editable, [](FUserHand& Hand, const QPointF& Point) { Hand.Click(Point); });
}

FPlayStep PlayActions::Type(const FString& Text)
{
	return WithKeyboard(
		[Text](IPlayStage& Stage, FUserHand& Hand)
		{
			if (!FSlateApplication::Get().GetKeyboardFocusedWidget())
			{
				return FailHere(Stage, TEXT("no widget has the keyboard focus"));
			}
			Hand.Type(ToQString(Text));
			return FPlayResult::Done();
		});
}

FPlayStep PlayActions::Press(const FKeyStroke& Stroke)
{
	return WithKeyboard(
		[Stroke](IPlayStage&, FUserHand& Hand)
		{
			Hand.Press(Stroke);
			return FPlayResult::Done();
		});
}

FPlayStep PlayActions::Click(const FString& Text, const TOptional<int32>& Count)
{
	return ActAtStep(MakeTextTarget(Text, Count), [](FUserHand& Hand, const QPointF& Point) { Hand.Click(Point); });
}

FPlayStep PlayActions::Hover(const FString& Text, const TOptional<int32>& Count)
{
	return ActAtStep(MakeTextTarget(Text, Count), [](FUserHand& Hand, const QPointF& Point) { Hand.MoveTo(Point); });
}

FPlayStep PlayActions::Wheel(const FString& Text, int32 Notches)
{
	FTarget Target = MakeTextTarget(Text, NullOpt);
	Target.GetPoint = &GetMiddleOfVisible;
	return ActAtStep(Target, [Notches](FUserHand& Hand, const QPointF& Point) { Hand.Wheel(Point, Notches); });
}

FPlayStep PlayActions::Resize(const FContentSize& Size)
{
	return [Size](IPlayStage& Stage, double)
	{
		Stage.ResizeTabContent(Size);
		return FPlayResult::Done();
	};
}

FPlayStep PlayActions::Sleep(double Seconds)
{
	return [Seconds](IPlayStage&, double Passed)
	{
		return Passed < Seconds ? FPlayResult::NotYet() : FPlayResult::Done();
	};
}
