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

	void Announce()
	{
		Actions->OnChatHistoriesRefreshed.ExecuteIfBound(Client.Chat->ChatHistories);
		User.Frame();
	}

	void Open()
	{
		Announce();
		User.Click(TEXT("History"));
	}

	std::string DeleteRow(size_t Row)
	{
		const FVector2D Place = FindOne(User.GetWindow(), TEXT("SImage"), Row + 1)->GetCachedGeometry().GetAbsolutePosition();
		User.ClickAt(Place + FVector2D(8.0, 8.0));
		return TakeFired();
	}

	std::string Rows() const { return ReadTexts(User.GetWindow()); }

	// What was fired and logged since the last time, in its order.
	std::string TakeFired() { return std::exchange(Fired, "") + TakeLog(Log); }

	FFakeClient Client;
	FLogCapture Log;
	std::string Fired;
	TSharedRef<FChatPanelActions> Actions = MakeShared<FChatPanelActions>();
	TSharedRef<SChatHistory> Widget = SNew(SChatHistory).PanelActions(Actions);
	FUserDriver User{SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[Widget], FVector2D(400.0, 300.0), 1.0f,
		EDriverFonts::Even};
};

const std::string InvalidItem = "Error: Invalid chat history passed to chat history item widget\n";

} // namespace

TEST_F(ChatHistory, ListsWhatIsAnnouncedInItsOrder)
{
	User.Click(TEXT("History"));
	EXPECT_EQ(Rows(), "History") << "an empty list opens too";
	Client.MakeHistory(TEXT("A title of more than twenty characters"));
	Announce();
	EXPECT_EQ(Rows(), "History | first | A title of more than");
	User.Click(TEXT("first"));
	EXPECT_EQ(TakeFired(), "Log: Chat history selection changed to first\nopen first; ");
	const TArray<TObjectPtr<USerializableChatHistory>> Former = Client.Chat->ChatHistories;
	Client.Chat->ChatHistories.Empty();
	Open();
	EXPECT_EQ(Rows(), "History");
	Client.Chat->ChatHistories = Former;
	Announce();
	User.Click(TEXT("first"));
	EXPECT_EQ(TakeFired(), "") << "the selection was not touched";
}

TEST_F(ChatHistory, AnInvalidConversationIsAnEmptyRowAndOneThatIsGoneCanBeNeitherDeletedNorOpened)
{
	Client.MakeHistory(TEXT("broken"))->bIsValidHistory = false;
	Client.Chat->ChatHistories.Add(nullptr);
	Open();
	EXPECT_EQ(TakeFired(), InvalidItem + InvalidItem);
	EXPECT_EQ(Rows(), "History | first");
	EXPECT_EQ(FindAll(User.GetWindow(), TEXT("SComboRow")).size(), 3u);
	User.Play(TEXT("Down Down Enter"));
	EXPECT_EQ(TakeFired(), "Log: Chat history selection changed to broken\nopen broken; ");
	User.Play(TEXT("Enter End"));
	TakeFired();
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeFired(), "");

	Client.Chat->ChatHistories.SetNum(1);
	const TObjectPtr<UFakeChatHistory> Gone = Client.MakeHistory(TEXT("gone"));
	Open();
	Gone->MarkAsGarbage();
	EXPECT_EQ(DeleteRow(1), "");
	Announce();
	EXPECT_EQ(TakeFired(), InvalidItem);
	EXPECT_EQ(Rows(), "History | first");
	User.Play(TEXT("End Enter"));
	EXPECT_EQ(TakeFired(), "");
}

TEST_F(ChatHistory, HasItsMeasures)
{
	Open();
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
	Open();
	EXPECT_EQ(DeleteRow(1), "Log: Chat history deleted second\ndelete second; Log: Chat history selection changed to first\nopen first; ");
	EXPECT_EQ(Rows(), "History | first | third") << "the list stays open";
	EXPECT_EQ(FindOne(User.GetWindow(), TEXT("SComboRow"))->GetTag(), FName(TEXT("selected")));
	EXPECT_EQ(DeleteRow(1), "Log: Chat history deleted third\ndelete third; ");
	EXPECT_EQ(DeleteRow(0), "Log: Chat history deleted first\ndelete first; ");
	EXPECT_EQ(Rows(), "History");
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
	Open();
	EXPECT_EQ(DeleteRow(0), "Log: Chat history deleted first\nLog: Chat history selection changed to second\nopen second; ");
	EXPECT_EQ(Rows(), "History | second");
	User.Click(TEXT("second"));
	EXPECT_EQ(TakeFired(), "");
}

TEST_F(ChatHistory, WithoutActionsOrEventsNothingHappens)
{
	Widget->UnregisterEvents();
	Open();
	EXPECT_EQ(Rows(), "History");
	FUserDriver Other(SNew(SChatHistory), FVector2D(400.0, 300.0));
	Other.Click(TEXT("History"));
	EXPECT_TRUE(Other.GetWindow()->GetPopup().IsValid());
}
