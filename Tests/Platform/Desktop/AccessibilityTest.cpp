// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "HostSupport.h"
#include "Styling/AppStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SHyperlink.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <QAccessible>

namespace
{
class Accessibility : public testing::Test
{
protected:
	// clang-format off
	TSharedRef<SWidget> MakeContent()
	{
		return SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Title, STextBlock).Text(INVTEXT("Title"))]
			+ SVerticalBox::Slot().AutoHeight()
			[
				SAssignNew(Icon, SButton).OnClicked_Lambda([this] { ++Clicks; return FReply::Handled(); })
				[
					SNew(SImage).Image(FAppStyle::Get().GetBrush(TEXT("Icons.Plus")))
				]
			]
			+ SVerticalBox::Slot().AutoHeight()[SNew(SButton).Text(INVTEXT("Log in")).IsEnabled(false)]
			+ SVerticalBox::Slot().AutoHeight()[SNew(SHyperlink).Text(INVTEXT("Terms"))]
			+ SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(INVTEXT("gone")).Visibility(EVisibility::Collapsed)]
			+ SVerticalBox::Slot().AutoHeight()[SNew(SMultiLineEditableText).Text(INVTEXT("answer")).IsReadOnly(true)]
			+ SVerticalBox::Slot().AutoHeight()
			[
				SAssignNew(Field, SMultiLineEditableText).Text(INVTEXT("typed")).HintText(INVTEXT("Type here"))
			];
	}
	// clang-format on

	QAccessibleInterface* Root() { return QAccessible::queryAccessibleInterface(&Host.Widget); }

	QAccessibleInterface* Find(const QString& Name)
	{
		for (int Index = 0; Index < Root()->childCount(); ++Index)
		{
			if (Root()->child(Index)->text(QAccessible::Name) == Name)
			{
				return Root()->child(Index);
			}
		}
		return nullptr;
	}

	void Press(const QString& Name) { Find(Name)->actionInterface()->doAction(QAccessibleActionInterface::pressAction()); }

	void PressKey(const FKey& Key)
	{
		FSlateApplication::Get().ProcessKeyDownEvent(Host.Window, FKeyEvent(Key));
		RunFrames();
	}

	TSharedPtr<STextBlock> Title;
	TSharedPtr<SButton> Icon;
	TSharedPtr<SMultiLineEditableText> Field;
	int Clicks = 0;
	FTestHost Host{MakeContent()};
};
} // namespace

TEST_F(Accessibility, WidgetsAreReadInOrderByNameRoleAndState)
{
	std::vector<std::pair<std::string, QAccessible::Role>> Seen;
	for (int Index = 0; Index < Root()->childCount(); ++Index)
	{
		QAccessibleInterface* Child = Root()->child(Index);
		Seen.emplace_back(Child->text(QAccessible::Name).toStdString(), Child->role());
		EXPECT_EQ(Child->parent(), Root());
		EXPECT_EQ(Root()->indexOfChild(Child), Index);
	}
	const std::vector<std::pair<std::string, QAccessible::Role>> Expected = {{"Title", QAccessible::StaticText},
		{"Plus", QAccessible::Button}, {"Log in", QAccessible::Button}, {"Terms", QAccessible::Link}, {"answer", QAccessible::StaticText},
		{"Type here", QAccessible::EditableText}};
	EXPECT_EQ(Seen, Expected);
	EXPECT_TRUE(Find("Log in")->state().disabled);
	EXPECT_FALSE(Find("Plus")->state().disabled);
	EXPECT_TRUE(Find("answer")->state().readOnly);
	EXPECT_EQ(Find("Type here")->text(QAccessible::Value), "typed");
	EXPECT_TRUE(Find("Type here")->state().editable);
	EXPECT_TRUE(Find("Type here")->state().multiLine);
	EXPECT_FALSE(Find("Type here")->state().focused);
	Find("Type here")->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
	EXPECT_TRUE(Find("Type here")->state().focused);
	EXPECT_EQ(Root()->focusChild(), Find("Type here"));
}

TEST_F(Accessibility, ButtonsCanBePressedWhereTheyStandAndTheTreeFollowsTheWidgets)
{
	QAccessibleInterface* Button = Find("Plus");
	const FVector2D Place = Icon->GetCachedGeometry().GetAbsolutePosition();
	EXPECT_EQ(Button->rect().topLeft() - Host.Widget.mapToGlobal(QPoint(0, 0)), QPoint(qRound(Place.X), qRound(Place.Y)));
	EXPECT_EQ(Root()->childAt(Button->rect().center().x(), Button->rect().center().y()), Button);
	Press("Plus");
	Press("Log in");
	EXPECT_EQ(Clicks, 1);

	QAccessibleInterface* Text = Find("Title");
	Title->SetText(INVTEXT("Changed"));
	EXPECT_EQ(Text->text(QAccessible::Name), "Changed");
	Host.Window->SetContent(SNew(STextBlock).Text(INVTEXT("only")));
	Title.Reset();
	RunFrames();
	EXPECT_EQ(Root()->childCount(), 1);
	EXPECT_NE(Find("only"), nullptr);
}

TEST_F(Accessibility, AnOpenListIsReadWithItsHighlightAsTheFocus)
{
	using FOption = TSharedPtr<FString>;
	const TArray<FOption> Options = {MakeShared<FString>(TEXT("Ask")), MakeShared<FString>(TEXT("Agent"))};
	// clang-format off
	const TSharedRef<SComboBox<FOption>> Box =
		SNew(SComboBox<FOption>)
		.OptionsSource(&Options)
		.OnGenerateWidget_Lambda([](FOption Option)
		{
			return SNew(SHorizontalBox)
				+ SHorizontalBox::Slot()[SNew(STextBlock).Text(FText::FromString(*Option))]
				+ SHorizontalBox::Slot()[SNew(SButton)[SNew(SImage).Image(FAppStyle::Get().GetBrush(TEXT("Icons.Plus")))]];
		})
		.InitiallySelectedItem(Options[0])
		[
			SNew(STextBlock).Text(INVTEXT("Mode"))
		];
	// clang-format on
	Host.Window->SetContent(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Box]);
	Host.Widget.resize(200, 200);
	RunFrames();
	EXPECT_EQ(Find("Mode")->role(), QAccessible::ComboBox);
	EXPECT_FALSE(Find("Mode")->state().expanded);
	Press("Mode");
	PressKey(EKeys::Down);
	EXPECT_TRUE(Find("Mode")->state().expanded);
	EXPECT_EQ(Root()->childCount(), 5);
	EXPECT_TRUE(Find("Ask")->state().selected);
	EXPECT_EQ(Find("Agent")->role(), QAccessible::ListItem);
	EXPECT_EQ(Root()->focusChild(), Find("Agent"));
	PressKey(EKeys::Tab);
	EXPECT_EQ(Root()->focusChild()->text(QAccessible::Name), "Plus") << "what Enter presses now";
	EXPECT_FALSE(Find("Agent")->state().focused);
	Press("Agent");
	EXPECT_EQ(Box->GetSelectedItem(), Options[1]);
	EXPECT_FALSE(Box->IsOpen());
}
