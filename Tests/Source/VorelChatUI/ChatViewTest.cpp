// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatView.h"
#include "Chat/SNotification.h"
#include "Support/FakeClient/FakeClient.h"
#include "Widgets.h"
#include <gtest/gtest.h>

namespace
{

class ChatView : public testing::Test
{
protected:
	ChatView() { Open(); }

	void Open() { View = SNew(SChatView).ChatService(Client.Chat).AuthService(Client.Auth).Notification(Notification); }

	std::string List() const { return ReadList(View.ToSharedRef()); }

	// "u text", "a text" and "s text" add a message of that role, "c text" delivers a chunk; "done", "fail" and "load" speak for
	// themselves.
	void Run(const std::vector<std::string>& Steps)
	{
		for (const std::string& Step : Steps)
		{
			const FString Text(Step.size() > 2 ? Step.c_str() + 2 : "");
			if (Step == "done")
			{
				Client.Chat->OnRequestCompleted.Broadcast();
			}
			else if (Step == "fail")
			{
				Client.FailTurn(TEXT("no line"));
			}
			else if (Step == "load")
			{
				View->LoadChatHistory();
			}
			else if (Step[0] == 'c')
			{
				Client.DeliverChunk(Text);
			}
			else
			{
				Client.AddMessage(Step[0] == 'u' ? EChatRole::User : Step[0] == 'a' ? EChatRole::Assistant : EChatRole::System, Text);
			}
		}
	}

	FFakeClient Client;
	TSharedRef<SNotification> Notification = SNew(SNotification);
	TSharedPtr<SChatView> View;
};

} // namespace

TEST_F(ChatView, EveryRowOfTheStateTable)
{
	struct FRow
	{
		std::vector<std::string> Steps;
		std::string List;
	};
	// The step after an event tells which state it led to: a chunk grows the streaming item or makes a new one, and a placeholder goes only
	// where one stands.
	const FRow Rows[] = {
		{{"u q"}, "You: q | (thinking)"},
		{{"a x"}, "Vorel: x"},
		{{"s x", "c y"}, "System: x | Vorel: y"},
		{{"c x", "c y"}, "Vorel: xy"},
		{{"c "}, "Vorel"},
		{{"done", "c x"}, "Vorel: x"},
		{{"u q", "c x"}, "You: q | Vorel: x"},
		{{"u q", "u r"}, "You: q | (thinking) | You: r"},
		{{"u q", "a x", "c y"}, "You: q | Vorel: x | Vorel: y"},
		{{"u q", "done"}, "You: q"},
		{{"u q", "c x", "c y"}, "You: q | Vorel: xy"},
		{{"u q", "c x", "a x", "c y"}, "You: q | Vorel: x | Vorel: y"},
		{{"u q", "c x", "u r"}, "You: q | Vorel: x | (thinking)"},
		{{"u q", "c x", "done", "c y"}, "You: q | Vorel: xy"},
		{{"u q", "c x", "done", "a x", "u r"}, "You: q | Vorel: x | You: r | (thinking)"},
		{{"u q", "c x", "a x", "done", "u r"}, "You: q | Vorel: x | You: r | (thinking)"},
		{{"a x", "fail", "c y"}, "Vorel: x | Vorel: y"},
		{{"u q", "fail", "u r"}, "You: q | You: r | (thinking)"},
		// The streaming item stays set on an item that is no longer shown.
		{{"u q", "c x", "fail"}, "You: q"},
		{{"u q", "c x", "fail", "c y"}, "You: q"},
		{{"u q", "c x", "fail", "u r"}, "You: q | (thinking)"},
		{{"u q", "c x", "fail", "u r", "c y"}, "You: q | Vorel: y"},
		{{"u q", "c x", "fail", "u r", "load"}, "You: q | You: r"},
		// A reload takes the placeholder's widget and leaves the flag.
		{{"u q", "load"}, "You: q"},
		{{"u q", "load", "u r"}, "You: q | You: r"},
		{{"u q", "load", "done", "u r"}, "You: q | You: r | (thinking)"},
	};
	for (const FRow& Row : Rows)
	{
		Client.OpenHistory(TEXT("next"));
		Open();
		Run(Row.Steps);
		EXPECT_EQ(List(), Row.List) << testing::PrintToString(Row.Steps);
		// Only this view is to hear the next row.
		View.Reset();
	}
}

TEST_F(ChatView, LoadsTheStoredConversation)
{
	const TObjectPtr<UFakeChatHistory> History = Client.OpenHistory(TEXT("stored"));
	History->AddMessage(EChatRole::User, {});
	History->AddMessage(EChatRole::Assistant, {TEXT("first"), TEXT("second")});
	History->AddMessage(static_cast<EChatRole>(3), {TEXT("odd")});
	History->Messages.Add(nullptr);
	History->AddMessage(EChatRole::System, {TEXT("last")});
	FLogCapture Log;
	Open();
	EXPECT_EQ(List(), "You | Vorel: first | You: odd | System: last");
	EXPECT_EQ(TakeLog(Log), "Warning: Skipped adding invalid message to chat view\n");

	Client.OpenHistory(TEXT("empty"));
	View->LoadChatHistory();
	EXPECT_EQ(List(), "");
}

TEST_F(ChatView, WithoutACurrentConversationTheListStands)
{
	Run({"u q"});
	Client.Chat->CurrentConversation = nullptr;
	View->LoadChatHistory();
	EXPECT_EQ(List(), "You: q | (thinking)");
}

TEST_F(ChatView, AFailureIsLoggedAndShown)
{
	FLogCapture Log;
	Run({"u q", "fail"});
	EXPECT_EQ(TakeLog(Log), "Error: Unexpected error: no line\n");
	EXPECT_EQ(ReadTexts(Notification), "Unexpected error! | no line");
}

TEST_F(ChatView, UnregisterEventsUndoesRegisterEvents)
{
	View->UnregisterEvents();
	Run({"u q", "c x", "done", "fail"});
	EXPECT_EQ(List(), "");
	EXPECT_EQ(ReadTexts(Notification), "");
	View->RegisterEvents();
	Run({"u r"});
	EXPECT_EQ(List(), "You: r | (thinking)");
	View.Reset();
	EXPECT_FALSE(Client.Chat->OnChunkReceived.IsBound());
}
