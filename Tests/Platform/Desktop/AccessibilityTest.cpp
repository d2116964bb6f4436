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
#include <QAccessibleBridge>
#include <QtPlugin>

static QString Describe(QAccessibleEvent* Event)
{
	if (const auto* Text = dynamic_cast<QAccessibleTextUpdateEvent*>(Event))
	{
		return QStringLiteral("%1: %2 to %3").arg(Text->changePosition()).arg(Text->textRemoved(), Text->textInserted());
	}
	if (const auto* Text = dynamic_cast<QAccessibleTextInsertEvent*>(Event))
	{
		return QStringLiteral("%1: + %2").arg(Text->changePosition()).arg(Text->textInserted());
	}
	if (const auto* Text = dynamic_cast<QAccessibleTextRemoveEvent*>(Event))
	{
		return QStringLiteral("%1: - %2").arg(Text->changePosition()).arg(Text->textRemoved());
	}
	if (const auto* Selection = dynamic_cast<QAccessibleTextSelectionEvent*>(Event))
	{
		return QStringLiteral("[%1 %2]").arg(Selection->selectionStart()).arg(Selection->selectionEnd());
	}
	if (const auto* Caret = dynamic_cast<QAccessibleTextCursorEvent*>(Event))
	{
		return QStringLiteral("at %1").arg(Caret->cursorPosition());
	}
	return Event->type() == QAccessible::Focus ? QStringLiteral("focus") : QStringLiteral("other");
}

static QStringList Told;

/** Stands where a screen reader's connection does. */
class FBridge : public QAccessibleBridgePlugin, public QAccessibleBridge
{
	Q_OBJECT
	Q_PLUGIN_METADATA(IID QAccessibleBridgeFactoryInterface_iid FILE "AccessibilityBridge.json")

public:
	QAccessibleBridge* create(const QString&) override { return new FBridge; }
	void setRootObject(QAccessibleInterface*) override {}
	void notifyAccessibilityUpdate(QAccessibleEvent* Event) override { Told.append(Describe(Event)); }
};
Q_IMPORT_PLUGIN(FBridge)

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

	/** What is told of in the frames until nothing is left to do, in the order of the calls. */
	static std::string Listen()
	{
		Told.clear();
		RunFrames();
		return Told.join(QStringLiteral(", ")).toStdString();
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

TEST_F(Accessibility, ATextThatIsEditedIsReadAndItsChangesAreToldWhileSomebodyListens)
{
	Host.Widget.resize(200, 200);
	FSlateApplication::Get().SetKeyboardFocus(Field);
	EXPECT_EQ(Listen(), "") << "nobody listens";
	QAccessible::setActive(true);
	EXPECT_EQ(Find("answer")->textInterface(), nullptr) << "its name is what it shows";
	Host.Window->SetContent(SAssignNew(Field, SMultiLineEditableText).Text(INVTEXT("one!")).HintText(INVTEXT("Type here")));
	FSlateApplication::Get().SetKeyboardFocus(Field);
	EXPECT_EQ(Listen(), "focus");

	const struct
	{
		Qt::Key Key;
		Qt::KeyboardModifiers Modifiers;
		const char* Text;
		const char* Told;
	} Steps[] = {
		{Qt::Key_Return, Qt::NoModifier, "", "4: + \n, at 5"},
		{Qt::Key_unknown, Qt::NoModifier, "\U0001F600", "5: + \U0001F600, at 7"},
		{Qt::Key_Left, Qt::NoModifier, "", "at 5"},
		{Qt::Key_unknown, Qt::NoModifier, "\U0001F601", "5: + \U0001F601, at 7"},
		{Qt::Key_Right, Qt::ShiftModifier, "", "at 9, [7 9]"},
		{Qt::Key_unknown, Qt::NoModifier, "\U0001FA00", "7: \U0001F600 to \U0001FA00, [-1 -1]"},
		{Qt::Key_Backspace, Qt::NoModifier, "", "7: - \U0001FA00, at 7"},
		{Qt::Key_A, Qt::ControlModifier, "", "[0 7]"},
		{Qt::Key_Home, Qt::ControlModifier, "", "at 0, [-1 -1]"},
		{Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier, "", "at 3, [0 3]"},
	};
	for (const auto& Step : Steps)
	{
		Host.Key(QEvent::KeyPress, Step.Key, Step.Modifiers, Step.Text);
		EXPECT_EQ(Listen(), Step.Told);
	}
	FDesktopApplication::Get().RequestFrame();
	EXPECT_EQ(Listen(), "") << "nothing changed";
	QAccessible::setActive(false);

	QAccessibleTextInterface* Text = Find("Type here")->textInterface();
	int Begin = -1;
	int End = -1;
	EXPECT_EQ(Text->text(-1, 100), u"one!\n\U0001F601");
	EXPECT_EQ(Text->text(3, 1), "");
	EXPECT_EQ(Text->characterCount(), 7);
	EXPECT_EQ(Text->cursorPosition(), 3);
	EXPECT_EQ(Text->selectionCount(), 1);
	Text->selection(0, &Begin, &End);
	EXPECT_EQ(std::pair(Begin, End), std::pair(0, 3));
	EXPECT_EQ(Text->textAtOffset(1, QAccessible::LineBoundary, &Begin, &End), "one!\n");
	EXPECT_EQ(std::pair(Begin, End), std::pair(0, 5));
	for (const int Offset : {0, 1, 2, 3, 5})
	{
		const QRect Area = Text->characterRect(Offset);
		EXPECT_TRUE(Find("Type here")->rect().contains(Area)) << Offset;
		EXPECT_EQ(Text->offsetAtPoint(Area.center()), Offset);
	}
	EXPECT_EQ(Text->characterRect(5).left(), Text->characterRect(0).left()) << "on the next line";
	EXPECT_FALSE(Text->characterRect(7).isEmpty()) << "where the next one comes to stand";
	EXPECT_TRUE(Text->characterRect(8).isNull());
	EXPECT_EQ(Text->offsetAtPoint(QPoint(-1, -1)), -1);
	QInputMethodEvent Composing(QStringLiteral("\u306b"), {});
	QApplication::sendEvent(&Host.Widget, &Composing);
	EXPECT_EQ(Text->text(0, 100), u"\u306b!\n\U0001F601") << "what is composed can be read, too";
}

#include "AccessibilityTest.moc"
