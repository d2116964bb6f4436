// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatPanelActions.h"
#include "Chat/SChatHistory.h"
#include "DesktopApplication.h"
#include "Framework/Application/SlateApplication.h"
#include "QSlateWidget.h"
#include "SerializableChatHistory.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"

#include <benchmark/benchmark.h>

namespace
{
constexpr int Width = 1000;
constexpr int Height = 800;
constexpr float FrameSeconds = 0.016f;

class UTitledHistory : public USerializableChatHistory
{
public:
	bool IsValidHistory() const override { return true; }
	FString GetDisplayableTitle(bool, int32 MaxLength) override { return (TEXT("Conversation ") + Id).Left(MaxLength); }
};

// The conversation picker in the corner of an offscreen window whose frames are run by hand.
class FOffscreenPicker
{
public:
	explicit FOffscreenPicker(int32 NumConversations)
	{
		for (int32 Index = 0; Index < NumConversations; ++Index)
		{
			UTitledHistory* const History = NewObject<UTitledHistory>();
			History->AddToRoot();
			History->Id = FString::FromInt(Index);
			Histories.Add(TObjectPtr<USerializableChatHistory>(History));
		}
		Host->resize(Width, Height);
		Host->show();
		Actions->OnChatHistoriesRefreshed.ExecuteIfBound(Histories);
		RunFrame();
		FSlateApplication::Get().ProcessKeyDownEvent(Window, FKeyEvent(EKeys::Tab));
		RunFrame();
	}

	~FOffscreenPicker()
	{
		for (const TObjectPtr<USerializableChatHistory>& History : Histories)
		{
			History->RemoveFromRoot();
			History->MarkAsGarbage();
		}
	}

	void Press(const FKey& Key)
	{
		FSlateApplication::Get().ProcessKeyDownEvent(Window, FKeyEvent(Key));
		FSlateApplication::Get().ProcessKeyUpEvent(Window, FKeyEvent(Key));
		RunFrame();
	}

	bool IsOpen() const { return Window->GetPopup().IsValid(); }

private:
	static void RunFrame()
	{
		FSlateApplication::Get().Tick(FrameSeconds);
		FDesktopApplication::Get().GetFrameLoop().OnShowFrame.Broadcast();
	}

	TArray<TObjectPtr<USerializableChatHistory>> Histories;
	TSharedRef<FChatPanelActions> Actions = MakeShared<FChatPanelActions>();
	// clang-format off
	TSharedRef<SWindow> Window =
		SNew(SWindow)
		[
			SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Right).VAlign(VAlign_Top)[SNew(SChatHistory).PanelActions(Actions)]
		];
	// clang-format on
	TUniquePtr<QSlateWidget> Host = MakeUnique<QSlateWidget>(FDesktopApplication::Get(), Window);
};

// From the key to the picture with the list in it.
void OpenConversationPicker(benchmark::State& State)
{
	FOffscreenPicker Picker(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		Picker.Press(EKeys::Enter);
		State.PauseTiming();
		if (!Picker.IsOpen())
		{
			State.SkipWithError("the list did not open");
			break;
		}
		Picker.Press(EKeys::Escape);
		State.ResumeTiming();
	}
}
BENCHMARK(OpenConversationPicker)->Arg(10)->Arg(100'000)->Unit(benchmark::kMillisecond);

// Page after page through the open list, and from its end to its beginning.
void PageThroughConversationPicker(benchmark::State& State)
{
	FOffscreenPicker Picker(static_cast<int32>(State.range(0)));
	Picker.Press(EKeys::Enter);
	int64 NumPages = 0;
	for (auto _ : State)
	{
		Picker.Press(++NumPages % 100 == 0 ? EKeys::Home : EKeys::PageDown);
	}
}
BENCHMARK(PageThroughConversationPicker)->Arg(100'000)->Unit(benchmark::kMillisecond);
} // namespace
