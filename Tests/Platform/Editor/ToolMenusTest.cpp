// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ToolMenus.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

class ToolMenusTest : public testing::Test
{
protected:
	~ToolMenusTest() override
	{
		UToolMenus::UnRegisterStartupCallback(this);
		if (bStarted)
		{
			UToolMenus::Shutdown();
		}
		CollectGarbage();
	}

	void Start(bool bHasMenus = true)
	{
		UToolMenus::Startup(bHasMenus);
		bStarted = true;
	}

	void OnStartup() { ++NumStartups; }

	void RegisterCallback()
	{
		UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &ToolMenusTest::OnStartup));
	}

	static TSharedRef<FUICommandInfo> MakeCommand(const TCHAR* Name)
	{
		FBindingContext Context("Context", FText(), NAME_None, NAME_None);
		TSharedPtr<FUICommandInfo> Command;
		MakeUICommand_InternalUseOnly(&Context, Command, TEXT("N"), Name, TEXT("Tip"), ".Dot", TEXT("Own label"), TEXT("Own tip"),
			EUserInterfaceActionType::Button, FInputChord());
		return Command.ToSharedRef();
	}

	TSharedPtr<FUICommandList> MakeList(const TSharedRef<FUICommandInfo>& Command)
	{
		const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
		List->MapAction(Command, FExecuteAction::CreateLambda([] { ADD_FAILURE() << "The replaced action ran"; }));
		List->MapAction(Command, FExecuteAction::CreateLambda([this] { ++NumExecuted; }),
			FCanExecuteAction::CreateLambda([this] { return bMayExecute; }));
		return List;
	}

	bool bStarted = false;
	bool bMayExecute = false;
	int32 NumStartups = 0;
	int32 NumExecuted = 0;
};

TEST_F(ToolMenusTest, RunsStartupCallbacksOnceItIsUpAlsoWithoutMenus)
{
	for (const bool bHasMenus : {true, false})
	{
		RegisterCallback();
		UToolMenus::UnRegisterStartupCallback(this);
		RegisterCallback();
		EXPECT_EQ(NumStartups, 0);
		Start(bHasMenus);
		EXPECT_EQ(NumStartups, 1);
		RegisterCallback();
		EXPECT_EQ(NumStartups, 2);
		EXPECT_EQ(UToolMenus::Get() != nullptr, bHasMenus);
		UToolMenus::UnRegisterStartupCallback(this);
		UToolMenus::UnregisterOwner(this);
		UToolMenus::Shutdown();
		NumStartups = 0;
		bStarted = false;
	}
}

TEST_F(ToolMenusTest, AnEntryShowsTheOverridesElseTheCommandsOwnTextsAndOutlivesItsCommandList)
{
	Start();
	const TSharedRef<FUICommandInfo> Command = MakeCommand(TEXT("Open"));
	TSharedPtr<FUICommandList> List = MakeList(Command);
	FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu("Menu")->FindOrAddSection("Tools");
	const FToolMenuEntry& Entry = Section.AddMenuEntryWithCommandList(Command, List);
	EXPECT_TEXT(Entry.GetLabel().ToString(), TEXT("Own label"));
	EXPECT_TEXT(Entry.GetToolTip().ToString(), TEXT("Own tip"));
	EXPECT_FALSE(Entry.Execute()) << "it may not";
	bMayExecute = true;
	EXPECT_TRUE(Entry.Execute());
	EXPECT_EQ(NumExecuted, 1);

	Section.AddMenuEntryWithCommandList(Command, List, INVTEXT("Label"), INVTEXT("Tip"), FSlateIcon("Style", "Icon"));
	ASSERT_EQ(Section.Entries.Num(), 1);
	EXPECT_TEXT(Section.FindEntry("Open")->GetLabel().ToString(), TEXT("Label"));
	EXPECT_TEXT(Section.FindEntry("Open")->GetToolTip().ToString(), TEXT("Tip"));
	EXPECT_TRUE(Section.FindEntry("Open")->CanExecute());
	List.Reset();
	EXPECT_FALSE(Section.FindEntry("Open")->CanExecute());
	EXPECT_FALSE(Section.FindEntry("Open")->Execute());
}

TEST_F(ToolMenusTest, RemovesWhatAnOwnerAddedAndNothingElse)
{
	Start();
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("Menu");
	{
		const FToolMenuOwnerScoped OwnerScoped(this);
		Menu->FindOrAddSection("A").AddMenuEntryWithCommandList(MakeCommand(TEXT("Mine")), nullptr);
		Menu->FindOrAddSection("B").AddMenuEntryWithCommandList(MakeCommand(TEXT("Mine too")), nullptr);
	}
	Menu->FindOrAddSection("B").AddMenuEntryWithCommandList(MakeCommand(TEXT("Nobody's")), nullptr);
	CollectGarbage();
	ASSERT_EQ(UToolMenus::Get()->FindMenu("menu"), Menu);
	int32 NumChanges = 0;
	UToolMenus::Get()->OnMenusChanged.AddLambda([&NumChanges] { ++NumChanges; });
	UToolMenus::UnregisterOwner(this);
	EXPECT_EQ(Menu->FindOrAddSection("A").Entries.Num(), 0);
	ASSERT_EQ(Menu->FindOrAddSection("B").Entries.Num(), 1);
	EXPECT_EQ(Menu->FindOrAddSection("B").Entries[0].Name, FName("Nobody's"));
	UToolMenus::UnregisterOwner(this);
	UToolMenus::UnregisterOwner(nullptr);
	EXPECT_EQ(NumChanges, 1);
}
