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
			[this](TObjectPtr<USerializableChatHistory> Item) { Fired += "open " + ToUtf8(Item->Id) + "; "; });
		Actions->OnChatDeleted.BindLambda(
			[this](TObjectPtr<USerializableChatHistory> Item) { Fired += "delete " + ToUtf8(Item->Id) + "; "; });
	}

	void Announce() { Actions->OnChatHistoriesRefreshed.ExecuteIfBound(Client.Chat->ChatHistories); }

	void ClickDeleteInRow(size_t Row)
	{
		const FVector2D Middle =
			FindOne(User.GetWindow(), TEXT("SImage"), Row + 1)->GetCachedGeometry().LocalToAbsolute(FVector2D(8.0, 8.0));
		User.ClickAt(Middle);
	}

	std::string TakeFired() { return std::exchange(Fired, ""); }

	FFakeClient Client;
	FLogCapture Log;
	std::string Fired;
	TSharedRef<FChatPanelActions> Actions = MakeShared<FChatPanelActions>();
	TSharedRef<SChatHistory> Widget = SNew(SChatHistory).PanelActions(Actions);
	// clang-format off
	FUserDriver User{
		SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[Widget],
		FVector2D(400.0, 300.0)};
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
	EXPECT_EQ(TakeFired(), "open first; ");
	EXPECT_EQ(TakeLog(Log), "Log: Chat history selection changed to first\n");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History");
	Client.Chat->ChatHistories.Empty();
	Announce();
	User.Click(TEXT("History"));
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History");
	EXPECT_EQ(TakeFired(), "") << "the selection is not touched";
}

TEST_F(ChatHistory, AnInvalidConversationIsAnEmptyRowThatCanBeChosen)
{
	Client.MakeHistory(TEXT("broken"))->bIsValidHistory = false;
	Client.Chat->ChatHistories.Add(nullptr);
	Announce();
	User.Click(TEXT("History"));
	EXPECT_EQ(TakeLog(Log), "Error: Invalid chat history passed to chat history item widget\n"
							"Error: Invalid chat history passed to chat history item widget\n");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History | first");
	EXPECT_EQ(FindAll(User.GetWindow(), TEXT("SComboRow")).size(), 3u);
	User.Press(TEXT("Down"));
	User.Press(TEXT("Down"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeFired(), "open broken; ");
	User.Press(TEXT("Enter"));
	User.Press(TEXT("End"));
	User.Press(TEXT("Enter"));
	EXPECT_EQ(TakeFired(), "");
}

TEST_F(ChatHistory, ADeletionOpensTheFirstThatIsLeftUnlessItIsSelected)
{
	Client.MakeHistory(TEXT("second"));
	Client.MakeHistory(TEXT("third"));
	Announce();
	User.Click(TEXT("History"));
	ClickDeleteInRow(1);
	EXPECT_EQ(TakeFired(), "delete second; open first; ");
	EXPECT_EQ(TakeLog(Log), "Log: Chat history deleted second\nLog: Chat history selection changed to first\n");
	EXPECT_EQ(ReadTexts(User.GetWindow()), "History | first | third") << "the list stays open";
	ClickDeleteInRow(1);
	EXPECT_EQ(TakeFired(), "delete third; ");
	ClickDeleteInRow(0);
	EXPECT_EQ(TakeFired(), "delete first; ");
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
	EXPECT_EQ(TakeFired(), "open second; ");
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
