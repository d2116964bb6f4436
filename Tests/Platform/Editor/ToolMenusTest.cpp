// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ToolMenus.h"
#include "Support/Printers.h"

#include <gtest/gtest.h>

// That callbacks wait for the menus, with and without them, and that entries show what they are given, is shown by the module's tests.

class ToolMenusTest : public testing::Test
{
protected:
	ToolMenusTest()
	{
		UToolMenus::Startup(true);
		Menu = UToolMenus::Get()->ExtendMenu("Menu");
	}
	~ToolMenusTest() override
	{
		UToolMenus::Shutdown();
		CollectGarbage();
	}

	static TSharedRef<FUICommandInfo> MakeCommand(const TCHAR* Name)
	{
		FBindingContext Context("Context", FText(), NAME_None, NAME_None);
		TSharedPtr<FUICommandInfo> Command;
		MakeUICommand_InternalUseOnly(&Context, Command, TEXT("N"), Name, TEXT("Tip"), ".Dot", TEXT("Own label"), TEXT("Own tip"),
			EUserInterfaceActionType::Button, FInputChord());
		return Command.ToSharedRef();
	}

	UToolMenu* Menu = nullptr;
};

TEST_F(ToolMenusTest, AnEntryAsksItsCommandListAndOutlivesIt)
{
	bool bMayExecute = false;
	int32 NumExecuted = 0;
	const TSharedRef<FUICommandInfo> Command = MakeCommand(TEXT("Open"));
	TSharedPtr<FUICommandList> List = MakeShared<FUICommandList>();
	List->MapAction(Command, FExecuteAction::CreateLambda([] { ADD_FAILURE() << "The replaced action ran"; }));
	List->MapAction(
		Command, FExecuteAction::CreateLambda([&] { ++NumExecuted; }), FCanExecuteAction::CreateLambda([&] { return bMayExecute; }));
	const FToolMenuEntry& Entry = Menu->FindOrAddSection("Tools").AddMenuEntryWithCommandList(Command, List);
	EXPECT_TEXT(Entry.GetLabel().ToString(), TEXT("Own label"));
	EXPECT_TEXT(Entry.GetToolTip().ToString(), TEXT("Own tip"));
	EXPECT_FALSE(Entry.Execute());
	bMayExecute = true;
	EXPECT_TRUE(Entry.Execute());
	EXPECT_EQ(NumExecuted, 1);
	List.Reset();
	EXPECT_FALSE(Entry.CanExecute());
	EXPECT_FALSE(Entry.Execute());
	Menu->FindOrAddSection("Tools").AddMenuEntryWithCommandList(Command, nullptr);
	EXPECT_EQ(Menu->FindOrAddSection("Tools").Entries.Num(), 1) << "the same again replaces it";
}

TEST_F(ToolMenusTest, RemovesWhatAnOwnerAddedAndNothingElse)
{
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
	UToolMenus::UnregisterOwner(this);
	UToolMenus::UnregisterOwner(nullptr);
	EXPECT_EQ(NumChanges, 1);
	EXPECT_EQ(Menu->FindOrAddSection("A").Entries.Num(), 0);
	ASSERT_EQ(Menu->FindOrAddSection("B").Entries.Num(), 1);
	EXPECT_EQ(Menu->FindOrAddSection("B").Entries[0].Name, FName("Nobody's"));
}
