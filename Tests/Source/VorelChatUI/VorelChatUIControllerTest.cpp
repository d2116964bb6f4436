// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Controller/VorelChatCommands.h"
#include "Controller/VorelChatUIController.h"
#include "Decorators/CodeBlockStyle.h"
#include "Editor.h"
#include "Framework/Docking/TabManager.h"
#include "Styling/AppStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/StyleSheets/VorelAIStyle.h"
#include "Styling/StyleSheets/VorelMarkdownStyle.h"
#include "Support/FakeClient/FakeClient.h"
#include "ToolMenus.h"
#include "VorelChatUI.h"
#include "Modules/ModuleManager.h"
#include "Widgets.h"
#include "Widgets/Docking/SDockTab.h"
#include <gtest/gtest.h>

namespace
{

const TCHAR* const MenuPaths[] = {TEXT("LevelEditor.MainMenu.Tools"), TEXT("AssetEditor.BlueprintEditor.MainMenu.Tools")};

class Shell : public testing::Test
{
protected:
	~Shell() override
	{
		CloseTab();
		if (bMenusAreUp)
		{
			UToolMenus::Shutdown();
		}
	}

	void BringUpMenus(bool bHasMenus = true)
	{
		UToolMenus::Startup(bHasMenus);
		bMenusAreUp = true;
	}

	static const FToolMenuEntry* FindEntry(const TCHAR* MenuPath)
	{
		UToolMenu* Menu = UToolMenus::Get()->FindMenu(MenuPath);
		return Menu == nullptr ? nullptr : Menu->FindOrAddSection("Tools").FindEntry("OpenVorelAITab");
	}

	static TSharedPtr<SDockTab> Tab()
	{
		return FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(FVorelChatUIController::VorelChatTabName));
	}

	static bool HasSpawner() { return FGlobalTabmanager::Get()->HasTabSpawner("VorelChat"); }

	static void CloseTab()
	{
		if (const TSharedPtr<SDockTab> Open = Tab())
		{
			Open->RequestCloseTab();
		}
	}

	std::string TakeCalls() const { return ToUtf8(Client.Calls->Take()); }

	FFakeClient Client;
	FLogCapture Log;

private:
	bool bMenusAreUp = false;
};

class Controller : public Shell
{
protected:
	Controller()
	{
		UI = MakeController();
		UI->InitializeUI();
	}

	~Controller() override { CloseTab(); }

	TSharedRef<FVorelChatUIController> MakeController() const
	{
		return MakeShared<FVorelChatUIController>(Client.Chat, Client.Auth, Client.UserData, Client.Update);
	}

	TSharedPtr<FVorelChatUIController> UI;
};

class Module : public Shell
{
protected:
	~Module() override
	{
		// For the tests after this one.
		FVorelAIStyle::Initialize();
		FVorelMarkdownStyle::Initialize();
		FCodeBlockStyle::Initialize();
	}
};

} // namespace

TEST_F(Controller, WaitsForTheMenuSystemAndThenAddsItsEntries)
{
	EXPECT_FALSE(FGlobalTabmanager::Get()->TryInvokeTab(FTabId("VorelChat")).IsValid());
	BringUpMenus();
	for (const TCHAR* Path : MenuPaths)
	{
		const FToolMenuEntry* Entry = FindEntry(Path);
		ASSERT_NE(Entry, nullptr);
		EXPECT_EQ(ToUtf8(Entry->GetLabel().ToString()), "Vorel AI");
		EXPECT_EQ(ToUtf8(Entry->GetToolTip().ToString()), "Opens Vorel.Chat assistant window");
		EXPECT_TRUE(Entry->Icon.Get().GetStyleName() == "ClassIcon.AIController");
		EXPECT_TRUE(Entry->Icon.Get().GetStyleSetName() == FAppStyle::GetAppStyleSetName());
	}
	const TSharedRef<FTabSpawnerEntry> Spawner = FGlobalTabmanager::Get()->GetSpawners().Last();
	EXPECT_EQ(ToUtf8(Spawner->GetDisplayName().ToString()), "Vorel AI");
	EXPECT_EQ(Spawner->GetMenuType(), ETabSpawnerMenuType::Hidden);
	EXPECT_EQ(TakeLog(Log), "");
}

TEST_F(Controller, TheCommandBindsNoKey)
{
	const FVorelChatCommands& Commands = FVorelChatCommands::Get();
	const FUICommandInfo& Command = *Commands.OpenVorelAITab;
	EXPECT_TRUE(Commands.GetContextName() == "VorelChat");
	EXPECT_EQ(ToUtf8(Commands.GetContextDesc().ToString()), "Vorel Chat Plugin");
	EXPECT_TRUE(Commands.GetContextParent().IsNone());
	EXPECT_TRUE(Command.GetCommandName() == "OpenVorelAITab");
	EXPECT_EQ(ToUtf8(Command.GetLabel().ToString()), "Vorel AI");
	EXPECT_EQ(ToUtf8(Command.GetDescription().ToString()), "Open the Vorel AI chat interface");
	EXPECT_EQ(ToUtf8(FTextInspector::GetKey(Command.GetDescription()).GetValue()), "OpenVorelAITab_ToolTip");
	EXPECT_EQ(Command.GetUserInterfaceType(), EUserInterfaceActionType::Button);
	EXPECT_FALSE(Command.GetDefaultChord().IsValidChord());
	EXPECT_FALSE(Command.GetAlternateDefaultChord().IsValidChord());
}

TEST_F(Controller, TheEntriesOpenOneTabWhoseViewLivesUntilTheNextOneIsBuilt)
{
	BringUpMenus();
	EXPECT_TRUE(FindEntry(MenuPaths[0])->Execute());
	TSharedPtr<SDockTab> First = Tab();
	ASSERT_TRUE(First.IsValid());
	EXPECT_EQ(First->GetTabRole(), ETabRole::NomadTab);
	EXPECT_EQ(ToUtf8(First->GetTabLabel().ToString()), "Vorel AI");
	EXPECT_EQ(ToUtf8(First->GetContent()->GetTypeAsString()), "SVorelAIView");
	EXPECT_EQ(TakeCalls(), "CheckForUpdates() GetUserData()");
	EXPECT_TRUE(FindEntry(MenuPaths[1])->Execute());
	EXPECT_TRUE(Tab() == First);
	EXPECT_EQ(TakeCalls(), "");

	const TWeakPtr<SWidget> FirstView = First->GetContent();
	Client.Auth->OnAuthenticationStateChanged.Broadcast();
	TakeCalls();
	CloseTab();
	First.Reset();
	ASSERT_TRUE(FirstView.IsValid());
	Client.AddMessage(EChatRole::Assistant, TEXT("meanwhile"));
	EXPECT_EQ(ReadList(FirstView.Pin().ToSharedRef()), "Vorel: meanwhile");
	FindEntry(MenuPaths[0])->Execute();
	EXPECT_EQ(TakeCalls(), "CheckForUpdates() GetUserData()");
	EXPECT_FALSE(FirstView.IsValid());

	// The old view's bindings fall away, and so does the timer of its greeting.
	Client.AddMessage(EChatRole::Assistant, TEXT("later"));
	EXPECT_EQ(ReadList(Tab()->GetContent()), "Vorel: meanwhile | Vorel: later");
	GEditor->GetTimerManager()->Tick(11.0f);
	EXPECT_EQ(FindOne(Tab()->GetContent(), TEXT("SNotification"))->GetVisibility(), EVisibility::Collapsed);
}

TEST_F(Controller, ShutdownTakesTheTabAndLeavesTheEntriesBehind)
{
	BringUpMenus();
	UI->ShutdownUI();
	EXPECT_FALSE(HasSpawner());
	UI->ShutdownUI();
	UI.Reset();
	for (const TCHAR* Path : MenuPaths)
	{
		ASSERT_NE(FindEntry(Path), nullptr);
		EXPECT_FALSE(FindEntry(Path)->Execute());
	}
	EXPECT_TRUE(FVorelChatCommands::IsRegistered());
}

TEST_F(Controller, WithoutMenusTheTabExistsAllTheSame)
{
	BringUpMenus(false);
	EXPECT_EQ(TakeLog(Log), "Warning: Can't register UI because ToolMenus are not available\n");
	EXPECT_TRUE(FGlobalTabmanager::Get()->TryInvokeTab(FTabId("VorelChat")).IsValid());
}

TEST_F(Controller, IsForgottenWhenItIsShutDownOrGoesBeforeTheMenusCome)
{
	UI->ShutdownUI();
	MakeController()->InitializeUI();
	BringUpMenus();
	EXPECT_FALSE(HasSpawner());
	EXPECT_EQ(FindEntry(MenuPaths[0]), nullptr);
}

TEST_F(Module, StartsAndStopsAnyNumberOfTimesAlsoWithoutAuthService)
{
	BringUpMenus();
	FVorelChatUI().ShutdownModule();
	const auto CountStyles = []
	{
		int Count = 0;
		for (const char* Name : {"FVorelAIStyle", "FVorelMarkdownStyle", "FCodeBlockStyle"})
		{
			Count += FSlateStyleRegistry::FindSlateStyle(Name) != nullptr ? 1 : 0;
		}
		return Count;
	};
	for (int Round = 0; Round < 2; ++Round)
	{
		FVorelChatUI::Get();
		EXPECT_EQ(CountStyles(), 3);
		EXPECT_TRUE(FindEntry(MenuPaths[0])->Execute());
		EXPECT_EQ(FindOne(Tab()->GetContent(), TEXT("SChatPanel"))->GetVisibility().IsVisible(), Client.Auth != nullptr);
		const bool bWarned =
			TakeLog(Log).find("Can't bind to authentication state changes because AuthService is not valid") != std::string::npos;
		EXPECT_EQ(bWarned, Client.Auth == nullptr);
		CloseTab();
		EXPECT_TRUE(FModuleManager::Get().UnloadModule("VorelChatUI"));
		EXPECT_FALSE(HasSpawner());
		EXPECT_EQ(CountStyles(), 0);
		Client.Auth = nullptr;
	}
}
