// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Application/VorelProgram.h"

#include "Application/GarbageTimer.h"
#include "Application/NoticeLog.h"
#include "Application/VorelStage.h"
#include "DataFolder.h"
#include "DesktopApplication.h"
#include "Frame/EditorFrame.h"
#include "Frame/FrameStyle.h"
#include "Framework/Docking/TabManager.h"
#include "Interfaces/IPluginManager.h"
#include "Modules/ModuleManager.h"
#include "Options/CommandLine.h"
#include "Play/PlayRunner.h"
#include "QtConversion.h"
#include "ToolMenus.h"
#include "UObject/UObjectGlobals.h"
#include "VorelClientOptions.h"
#include "VorelUserSettings.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Text/SMultiLineEditableText.h"

#include <QApplication>
#include <QUrl>
#include <cstdio>

namespace
{
// Everything below the window, in the order of its needs; goes in the reverse order.
class FPlatformScope
{
public:
	FPlatformScope(EBrowserMode BrowserMode)
		: Desktop(FDesktopApplication::Create(BrowserMode))
	{
		UToolMenus::Startup();
	}

	~FPlatformScope()
	{
		while (!FGlobalTabmanager::Get()->GetOpenTabs().IsEmpty())
		{
			FGlobalTabmanager::Get()->GetOpenTabs().Last()->RequestCloseTab();
		}
		FModuleManager::Get().UnloadModulesAtShutdown();
		UToolMenus::Shutdown();
		FDesktopApplication::Shutdown();
		CollectGarbage();
	}

	FPlatformScope(const FPlatformScope&) = delete;
	FPlatformScope& operator=(const FPlatformScope&) = delete;

	FDesktopApplication& GetDesktop() { return *Desktop; }

private:
	TSharedRef<FDesktopApplication> Desktop;
};

// In the order of the descriptor. The user interface, which comes last, tells its users itself what they should know.
void LoadModules(FNoticeLog& NoticeLog)
{
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("VorelAI"));
	checkf(Plugin.IsValid(), TEXT("VorelAI.uplugin was not found in a folder above the program"));
	for (const FModuleDescriptor& Module : Plugin->GetDescriptor().Modules)
	{
		if (Module.Name == FName(TEXT("VorelChatUI")))
		{
			NoticeLog.EndStartup();
		}
		FModuleManager::Get().LoadModuleChecked(Module.Name);
	}
}

FString GetAssistantName(const FCommandLine& Line)
{
	const FString& FromSettings = UVorelUserSettings::Get()->GetValues().AssistantUrl;
	const FString& Assistant = Line.AssistantUrl.IsEmpty() ? FromSettings : Line.AssistantUrl;
	const FString& Address = Assistant.IsEmpty() ? Line.ServiceUrl : Assistant;
	return Address.IsEmpty() ? FString(TEXT("Built-in guide")) : ToFString(QUrl(ToQString(Address)).host());
}

int RunScript(QApplication& Application, IPlayStage& Stage, const FPlayScript& Script)
{
	FString Problem = TEXT("the window was closed before the end");
	FPlayRunner Runner(Stage, Script,
		[&Problem](const FString& Ended)
		{
			Problem = Ended;
			QApplication::quit();
		});
	SMultiLineEditableText::SetCaretBlinking(false);
	Runner.Start();
	Application.exec();
	if (!Problem.IsEmpty())
	{
		std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(Problem));
	}
	return Problem.IsEmpty() ? 0 : 1;
}
} // namespace

int RunVorel(QApplication& Application, const FCommandLine& Line, const FPlayScript* Script)
{
	FString FirstNotice;
	FDataFolder::Set(Line.DataDir);
	if (!FDataFolder::Create(FirstNotice) && !Line.DataDir.IsEmpty())
	{
		std::fprintf(stderr, "vorel: %s\n", TCHAR_TO_UTF8(FirstNotice));
		return 2;
	}
	FVorelClientOptions::Set({Line.AssistantUrl, Line.Model, Line.ServiceUrl, Line.Issuer, Line.ClientId, Line.DailyCredits});

	FPlatformScope Platform(Script ? EBrowserMode::Record : EBrowserMode::Open);
	FEditorFrame* Frame = nullptr;
	FNoticeLog NoticeLog(
		[&](const FString& Notice)
		{
			FirstNotice = Notice;
			if (Frame)
			{
				Frame->ShowNotice(Notice);
			}
		});
	FrameStyle::Apply(Application);
	LoadModules(NoticeLog);

	FEditorFrame Window(Platform.GetDesktop(), Line.Size);
	Frame = &Window;
	Window.ShowNotice(FirstNotice);
	Window.SetAssistantName(GetAssistantName(Line));
	Window.show();
	Window.ResizeTabContent(Line.Size);
	const FGarbageTimer GarbageTimer(Platform.GetDesktop().GetFrameLoop());

	FVorelStage Stage(Platform.GetDesktop(), Window);
	return Script ? RunScript(Application, Stage, *Script) : Application.exec();
}
