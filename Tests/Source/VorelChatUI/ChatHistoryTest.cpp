// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatPanelActions.h"
#include "Chat/SChatHistory.h"
#include "Support/FakeClient/FakeClient.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"
#include <gtest/gtest.h>

namespace
{

class ChatHistory : public testing::Test
{
protected:
	ChatHistory()
	{
		Actions->OnChatHistorySelected.BindLambda(
			[this](TObjectPtr<USerializableChatHistory> Item) { Fired += TakeLog(Log) + "open " + ToUtf8(Item->Id) + "; "; });
		Actions->OnChatDeleted.BindLambda(
			[this](TObjectPtr<USerializableChatHistory> Item) { Fired += TakeLog(Log) + "delete " + ToUtf8(Item->Id) + "; "; });
	}

	void Announce() { Actions->OnChatHistoriesRefreshed.ExecuteIfBound(Client.Chat->ChatHistories); }

	void ClickDeleteInRow(size_t Row)
	{
		const FVector2D Middle =
			FindOne(User.GetWindow(), TEXT("SImage"), Row + 1)->GetCachedGeometry().LocalToAbsolute(FVector2D(8.0, 8.0));
		User.ClickAt(Middle);
	}

	// What was fired and logged since the last time, in its order.
	std::string TakeFired() { return std::exchange(Fired, "") + TakeLog(Log); }

	FFakeClient Client;
	FLogCapture Log;
	std::string Fired;
	TSharedRef<FChatPanelActions> Actions = MakeShared<FChatPanelActions>();
	TSharedRef<SChatHistory> Widget = SNew(SChatHistory).PanelActions(Actions);
	// clang-format off
	FUserDriver User{
		SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[Widget],
		FVector2D(400.0, 300.0), 1.0f, EDriverFonts::Even};
	// clang-format on
};

} // namespace

TEST_F(ChatHistory, ListsWhatIsAnnouncedInItsOrder)
{
	User.Click(TEXT("History"));
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History") << "an empty list opens too";
	Client.MakeHistory(TEXT("A title of more than twenty characters"));
	Announce();
	User.Frame();
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History | first | A title of more than");
	User.Click(TEXT("first"));
	EXPECT_EQ(TakeFired(), "Log: Chat history selection changed to first\nopen first; ");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History");
	const TArray<TObjectPtr<USerializableChatHistory>> Former = Client.Chat->ChatHistories;
	Client.Chat->ChatHistories.Empty();
	Announce();
	User.Click(TEXT("History"));
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History");
	Client.Chat->ChatHistories = Former;
	Announce();
	User.Click(TEXT("first"));
	EXPECT_EQ(TakeFired(), "") << "the selection was not touched";
}

TEST_F(ChatHistory, AnInvalidConversationIsAnEmptyRowThatCanBeChosen)
{
	Client.MakeHistory(TEXT("broken"))->bIsValidHistory = false;
	Client.Chat->ChatHistories.Add(nullptr);
	Announce();
	User.Click(TEXT("History"));
	EXPECT_EQ(TakeFired(), "Error: Invalid chat history passed to chat history item widget\n"
						   "Error: Invalid chat history passed to chat history item widget\n");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History | first");
	EXPECT_EQ(FindAll(User.GetWindow(), TEXT("SComboRow")).size(), 3u);
	User.Press(TEXT("Down"));
	User.Press(TEXT("Down"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeFired(), "Log: Chat history selection changed to broken\nopen broken; ");
	User.Press(TEXT("Enter"));
	User.Press(TEXT("End"));
	TakeFired();
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeFired(), "");
}

TEST_F(ChatHistory, AConversationThatIsGoneCanBeNeitherDeletedNorOpened)
{
	const TObjectPtr<UFakeChatHistory> Gone = Client.MakeHistory(TEXT("gone"));
	Announce();
	User.Click(TEXT("History"));
	Gone->MarkAsGarbage();
	ClickDeleteInRow(1);
	EXPECT_EQ(TakeFired(), "");
	Announce();
	User.Frame();
	EXPECT_EQ(TakeFired(), "Error: Invalid chat history passed to chat history item widget\n");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History | first");
	User.Press(TEXT("End"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeFired(), "");
}

TEST_F(ChatHistory, HasItsMeasures)
{
	Announce();
	User.Click(TEXT("History"));
	EXPECT_EQ(ToUtf8(User.Tree()), R"(SOverlay 0,0 400x300
  SChatHistory 0,0 92x22
    SBox 0,0 92x22
      SComboBox 0,0 92x22
        SHorizontalBox 12,3 72x16
          SBox 12,3 56x16
            STextBlock 12,3 56x16 "History"
          SImage 70,5 12x12
SBorder 0,24 92x36
  SComboList 4,28 84x28 focused
    SComboRow 4,28 84x28
      SHorizontalBox 12,32 68x20
        STextBlock 12,34 42x16 "first"
        SButton 56,32 24x20 name="Delete"
          SImage 60,34 16x16
)");
}

TEST_F(ChatHistory, ADeletionOpensTheFirstThatIsLeftUnlessItIsSelected)
{
	Client.MakeHistory(TEXT("second"));
	Client.MakeHistory(TEXT("third"));
	Announce();
	User.Click(TEXT("History"));
	ClickDeleteInRow(1);
	EXPECT_EQ(TakeFired(), "Log: Chat history deleted second\ndelete second; Log: Chat history selection changed to first\nopen first; ");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History | first | third") << "the list stays open";
	EXPECT_EQ(FindOne(User.GetWindow(), TEXT("SComboRow"))->GetTag(), FName(TEXT("selected")));
	ClickDeleteInRow(1);
	EXPECT_EQ(TakeFired(), "Log: Chat history deleted third\ndelete third; ");
	ClickDeleteInRow(0);
	EXPECT_EQ(TakeFired(), "Log: Chat history deleted first\ndelete first; ");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History");
}

TEST_F(ChatHistory, TheListThatADeletionBringsKeepsTheSelection)
{
	Client.MakeHistory(TEXT("second"));
	Actions->OnChatDeleted.BindLambda(
		[this](TObjectPtr<USerializableChatHistory> Item)
		{
			Client.Chat->ChatHistories.Remove(Item);
			Announce();
		});
	Announce();
	User.Click(TEXT("History"));
	ClickDeleteInRow(0);
	EXPECT_EQ(TakeFired(), "Log: Chat history deleted first\nLog: Chat history selection changed to second\nopen second; ");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History | second");
	User.Click(TEXT("second"));
	EXPECT_EQ(TakeFired(), "");
}

TEST_F(ChatHistory, WithoutActionsOrEventsNothingHappens)
{
	Widget->UnregisterEvents();
	Announce();
	User.Click(TEXT("History"));
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History");
	FUserDriver Other(SNew(SChatHistory), FVector2D(400.0, 300.0));
	Other.Click(TEXT("History"));
	EXPECT_TRUE(Other.GetWindow()->GetPopup().IsValid());
}
