// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatItem.h"
#include "MarkdownParser.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include <gtest/gtest.h>

namespace
{

// Nothing outside the item can reach its parser.
template <TObjectPtr<UMarkdownParser> SChatItem::*Member>
struct TParserOf
{
	friend TObjectPtr<UMarkdownParser> GetParser(const SChatItem& Item) { return Item.*Member; }
};
TObjectPtr<UMarkdownParser> GetParser(const SChatItem& Item);
template struct TParserOf<&SChatItem::MarkdownParser>;

TSharedRef<SChatItem> MakeItem(EChatRole Role, const TCHAR* Text)
{
	return SNew(SChatItem).Role(Role).Message(Text);
}

} // namespace

TEST(ChatItem, TheRoleDecidesNameAndGround)
{
	struct FRow
	{
		EChatRole Role;
		const char* Name;
		const char* Brush;
	};
	const FRow Rows[] = {{EChatRole::User, "You", "VorelAI.Background.Transparent"},
		{EChatRole::Assistant, "Vorel", "VorelAI.Background.Medium.Rounded.Small"},
		{EChatRole::System, "System", "VorelAI.Background.Light.Rounded.Small"},
		{static_cast<EChatRole>(3), "You", "VorelAI.Background.Transparent"}};
	for (const FRow& Row : Rows)
	{
		const TSharedRef<SChatItem> Item = MakeItem(Row.Role, TEXT("text"));
		EXPECT_EQ(ReadTexts(Item), std::string(Row.Name) + " | text");
		const TSharedRef<SBorder> Border = StaticCastSharedRef<SBorder>(FindOne(Item, TEXT("SBorder")));
		EXPECT_EQ(Border->GetBorderImage(), FVorelAIStyle::Get().GetBrush(Row.Brush)) << Row.Name;
	}
	EXPECT_EQ(ReadTexts(MakeItem(EChatRole::User, TEXT(""))), "You");
}

TEST(ChatItem, EveryChangeRendersTheWholeText)
{
	const TSharedRef<SChatItem> Item = MakeItem(EChatRole::Assistant, TEXT(""));
	FUserDriver User(Item, FVector2D(660.0, 400.0));
	Item->AddMessageContent(TEXT("a *b"));
	EXPECT_EQ(ReadTexts(Item), "Vorel | a *b");
	Item->AddMessageContent(TEXT("* <c> &amp;"));
	EXPECT_EQ(ReadTexts(Item), "Vorel | a b <c> &");
	Item->UpdateMessageContent(TEXT("```\nx\n```"));
	const TWeakPtr<SWidget> Block = FindOne(Item, TEXT("SSCodeWidget"));
	Item->AddMessageContent(TEXT(""));
	User.Frame();
	EXPECT_EQ(FindAll(Item, TEXT("SSCodeWidget")).size(), 1u);
	EXPECT_FALSE(Block.IsValid()) << "an empty addition renders anew too";
	Item->UpdateMessageContent(TEXT("**new**"));
	Item->AddMessageContent(TEXT("er"));
	EXPECT_EQ(ReadTexts(Item), "Vorel | newer");
	Item->UpdateMessageContent(TEXT(""));
	EXPECT_EQ(ReadTexts(Item), "Vorel");
}

TEST(ChatItem, IsLaidOutWithItsPaddings)
{
	const TSharedRef<SChatItem> Item = MakeItem(EChatRole::Assistant, TEXT("text"));
	FUserDriver User(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Item], FVector2D(660.0, 400.0), 1.0f, EDriverFonts::Even);
	EXPECT_EQ(PlaceOf(Item), "0,0 660x55");
	EXPECT_EQ(PlaceOf(FindOne(Item, TEXT("STextBlock"))), "10,5 640x16");
	EXPECT_EQ(PlaceOf(FindOne(Item, TEXT("SMarkdownTextbox"))), "10,26 640x24");
	Item->UpdateMessageContent(FString::ChrN(100, TEXT('m')));
	User.Frame();
	EXPECT_EQ(PlaceOf(FindOne(Item, TEXT("SMarkdownTextbox"))), "10,26 640x40") << "two rows";
}

TEST(ChatItem, BeforeItIsBuiltContentIsLost)
{
	const TSharedRef<SChatItem> Item = MakeShared<SChatItem>();
	Item->AddMessageContent(TEXT("lost"));
	Item->UpdateMessageContent(TEXT("lost"));
	Item->Construct(SChatItem::FArguments().Role(EChatRole::User).Message(TEXT("kept")));
	EXPECT_EQ(ReadTexts(Item), "You | kept");
}

TEST(ChatItem, OwnsItsParserWhichIsReplacedWhenItIsGarbage)
{
	TSharedPtr<SChatItem> Item = MakeItem(EChatRole::User, TEXT("text"));
	const TObjectPtr<UMarkdownParser> First = GetParser(*Item);
	CollectGarbage();
	Item->AddMessageContent(TEXT("!"));
	EXPECT_TRUE(IsValid(First) && GetParser(*Item) == First);
	First->MarkAsGarbage();
	Item->AddMessageContent(TEXT("!"));
	EXPECT_EQ(ReadTexts(Item.ToSharedRef()), "You | text!!");

	const TObjectPtr<UMarkdownParser> Second = GetParser(*Item);
	CollectGarbage();
	EXPECT_TRUE(IsValid(Second) && Second != First);
	Item.Reset();
	CollectGarbage();
	EXPECT_FALSE(IsValid(Second));
}
