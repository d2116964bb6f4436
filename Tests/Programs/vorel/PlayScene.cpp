// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "PlayScene.h"

#include "DesktopApplication.h"
#include "Play/PlayRunner.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <QApplication>

// Qt's application must go before the program's statics do.
class FQtEnvironment : public testing::Environment
{
public:
	void SetUp() override { Application = std::make_unique<QApplication>(ArgumentCount, Arguments); }
	void TearDown() override { Application.reset(); }

private:
	int ArgumentCount = 1;
	char Name[5] = "test";
	char* Arguments[2] = {Name, nullptr};
	std::unique_ptr<QApplication> Application;
};

static testing::Environment* const QtEnvironment = testing::AddGlobalTestEnvironment(new FQtEnvironment);

static FOnClicked Count(int32& Counter)
{
	return FOnClicked::CreateLambda(
		[&Counter]
		{
			++Counter;
			return FReply::Handled();
		});
}

FPlayScene::FPlayScene()
{
	FDesktopApplication& Desktop = *FDesktopApplication::Create(EBrowserMode::Record);
	SMultiLineEditableText::SetCaretBlinking(false);
	Host = std::make_unique<QSlateWidget>(Desktop, SNew(SWindow)[MakeContent()]);
	Host->resize(300, 200);
	Host->show();
}

FPlayScene::~FPlayScene()
{
	Host.reset();
	Rows.Reset();
	FDesktopApplication::Shutdown();
}

static TSharedRef<SWidget> MakeRows()
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	for (int32 Row = 0; Row < 100; ++Row)
	{
		Box->AddSlot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(FString::Printf(TEXT("Row %d"), Row)))];
	}
	return Box;
}

// clang-format off
TSharedRef<SWidget> FPlayScene::MakeContent()
{
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(INVTEXT("Title"))]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SButton).OnClicked(Count(NumPressedToo))[SNew(STextBlock).Text(INVTEXT("Press me too"))]]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SButton).OnClicked(Count(NumPressed))[SNew(STextBlock).Text(INVTEXT("Press me"))]]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SButton).Tag(TEXT("Tagged")).OnClicked(Count(NumTagged))[SNew(SBox).HeightOverride(10.0f)]]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SMultiLineEditableText).HintText(INVTEXT("Write here"))]
		+ SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(INVTEXT("Note")).Visibility(EVisibility::Collapsed)]
		+ SVerticalBox::Slot().FillHeight(1.0f)[SAssignNew(Rows, SScrollBox) + SScrollBox::Slot()[MakeRows()]];
}
// clang-format on

FString FPlayScene::Play(const FString& Text)
{
	FString Problem;
	TOptional<FPlayScript> Script = FPlayScript::Parse(TEXT("a.play"), Text, Problem);
	if (!Script)
	{
		return Problem;
	}
	bool bEnded = false;
	FPlayRunner Runner(*this, MoveTemp(*Script),
		[&](const FString& Ended)
		{
			Problem = Ended;
			bEnded = true;
		});
	Runner.Start();
	while (!bEnded)
	{
		QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
	}
	return Problem;
}

bool FPlayScene::IsPainted() const
{
	return FDesktopApplication::Get().IsIdle();
}

int64 FPlayScene::GetNumFrames() const
{
	return FDesktopApplication::Get().GetFrameLoop().GetStatistics().NumFrames;
}
