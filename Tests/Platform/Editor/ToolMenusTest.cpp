// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ToolMenus.h"
#include "Support/Printers.h"
#include "UObject/Package.h"

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
		List->MapAction(Command, FExecuteAction::CreateLambda([this] { ++NumExecuted; }));
		return List;
	}

	bool bStarted = false;
	int32 NumStartups = 0;
	int32 NumExecuted = 0;
};

TEST_F(ToolMenusTest, RunsStartupCallbacksOnceItIsUp)
{
	RegisterCallback();
	EXPECT_EQ(UToolMenus::Get(), nullptr);
	EXPECT_EQ(NumStartups, 0);
	Start();
	EXPECT_EQ(NumStartups, 1);
}

TEST_F(ToolMenusTest, RunsStartupCallbacksAtOnceIfItIsUpAlready)
{
	Start();
	RegisterCallback();
	EXPECT_EQ(NumStartups, 1);
}

TEST_F(ToolMenusTest, ForgetsTheCallbacksOfAnOwner)
{
	RegisterCallback();
	UToolMenus::UnRegisterStartupCallback(this);
	UToolMenus::UnRegisterStartupCallback(this);
	Start();
	EXPECT_EQ(NumStartups, 0);
}

TEST_F(ToolMenusTest, RunsStartupCallbacksInAHostWithoutMenus)
{
	RegisterCallback();
	Start(false);
	EXPECT_EQ(NumStartups, 1);
	EXPECT_EQ(UToolMenus::Get(), nullptr);
	UToolMenus::UnregisterOwner(this);
}

TEST_F(ToolMenusTest, MakesMenusAndSectionsOnce)
{
	Start();
	int32 NumChanges = 0;
	UToolMenus::Get()->OnMenusChanged.AddLambda([&NumChanges] { ++NumChanges; });
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("LevelEditor.MainMenu.Tools");
	EXPECT_EQ(UToolMenus::Get()->ExtendMenu("leveleditor.mainmenu.tools"), Menu);
	EXPECT_EQ(UToolMenus::Get()->ExtendMenu(NAME_None), nullptr);
	EXPECT_EQ(UToolMenus::Get()->GetMenus().Num(), 1);
	EXPECT_EQ(NumChanges, 1);
	EXPECT_EQ(&Menu->FindOrAddSection("Tools"), &Menu->FindOrAddSection("Tools"));
	EXPECT_EQ(Menu->Sections.Num(), 1);
	CollectGarbage();
	EXPECT_TRUE(IsValid(UToolMenus::Get()->FindMenu("LevelEditor.MainMenu.Tools")));
}

TEST_F(ToolMenusTest, AnEntryShowsTheOverridesElseTheCommandsOwnTexts)
{
	Start();
	const TSharedRef<FUICommandInfo> Command = MakeCommand(TEXT("Open"));
	const TSharedPtr<FUICommandList> List = MakeList(Command);
	FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu("Menu")->FindOrAddSection("Tools");
	const FToolMenuEntry& Entry = Section.AddMenuEntryWithCommandList(Command, List);
	EXPECT_EQ(Entry.Name, FName("Open"));
	EXPECT_TEXT(Entry.GetLabel().ToString(), TEXT("Own label"));
	EXPECT_TEXT(Entry.GetToolTip().ToString(), TEXT("Own tip"));
	EXPECT_TRUE(Entry.Execute());
	EXPECT_EQ(NumExecuted, 1);

	Section.AddMenuEntryWithCommandList(Command, List, INVTEXT("Label"), INVTEXT("Tip"), FSlateIcon("Style", "Icon"));
	ASSERT_EQ(Section.Entries.Num(), 1);
	EXPECT_TEXT(Section.Entries[0].GetLabel().ToString(), TEXT("Label"));
	EXPECT_TEXT(Section.Entries[0].GetToolTip().ToString(), TEXT("Tip"));
	EXPECT_EQ(Section.Entries[0].Icon.Get().GetStyleName(), FName("Icon"));
}

TEST_F(ToolMenusTest, AnEntryOutlivesItsCommandListAndThenDoesNothing)
{
	Start();
	const TSharedRef<FUICommandInfo> Command = MakeCommand(TEXT("Open"));
	TSharedPtr<FUICommandList> List = MakeList(Command);
	FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu("Menu")->FindOrAddSection("Tools");
	Section.AddMenuEntryWithCommandList(Command, List);
	EXPECT_TRUE(Section.FindEntry("Open")->CanExecute());
	List.Reset();
	EXPECT_FALSE(Section.FindEntry("Open")->CanExecute());
	EXPECT_FALSE(Section.FindEntry("Open")->Execute());
	EXPECT_EQ(NumExecuted, 0);
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

TEST_F(ToolMenusTest, ComesUpEmptyAgainAfterShutdown)
{
	Start();
	const TObjectPtr<UToolMenus> Old = UToolMenus::Get();
	UToolMenus::Get()->ExtendMenu("Menu");
	UToolMenus::Shutdown();
	EXPECT_EQ(UToolMenus::Get(), nullptr);
	CollectGarbage();
	EXPECT_FALSE(Old);
	UToolMenus::Startup();
	EXPECT_EQ(UToolMenus::Get()->GetMenus().Num(), 0);
}
