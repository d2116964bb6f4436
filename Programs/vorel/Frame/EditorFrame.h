// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Options/ContentSize.h"

#include <QMainWindow>

class FDesktopApplication;
class FTabWell;
class FToolsMenu;
class QLabel;
class QSlateWidget;

// The editor's window: menus, the tabs, and a status line for what belongs to no request.
class FEditorFrame : public QMainWindow
{
public:
	FEditorFrame(FDesktopApplication& Desktop, const FContentSize& ContentSize);

	// Of the tab in front; null where none is open.
	QSlateWidget* GetTabContent() const;
	// Exact once the window is shown.
	void ResizeTabContent(const FContentSize& Size);

	// False, with the reason, where no Tools menu has an entry of this label that can be invoked.
	bool InvokeToolsEntry(const FString& Label, FString& OutProblem);

	// Stays until the next one.
	void ShowNotice(const FString& Notice);
	void SetAssistantName(const FString& Name);

private:
	void MakeMenus();
	void MakeStatusLine();
	FToolsMenu* AddToolsMenu(const TCHAR* Path, const QString& Title);

	FTabWell* TabWell;
	TArray<FToolsMenu*> ToolsMenus;
	QLabel* Notice = nullptr;
	QLabel* Assistant = nullptr;
};
