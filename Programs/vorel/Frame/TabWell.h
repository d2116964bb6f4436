// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Options/ContentSize.h"

#include <QWidget>

class FDesktopApplication;
class QSlateWidget;
class QStackedWidget;
class QTabBar;
class SDockTab;

// The open tabs: their labels in a bar, the content of the one in front below it, and a word on how to open one where none is open.
class FTabWell : public QWidget
{
public:
	FTabWell(FDesktopApplication& InDesktop, const FContentSize& InContentSize);
	~FTabWell() override;

	// Of the tab in front; null where none is open.
	QSlateWidget* GetContent() const;
	// The room of a tab's content, in units.
	QSize GetContentSize() const;
	void CloseForegroundTab();

	QSize sizeHint() const override;

private:
	struct FPage
	{
		TWeakPtr<SDockTab> Tab;
		QSlateWidget* Host;
	};

	void AddPage(const TSharedRef<SDockTab>& Tab);
	void ShowPage(const TSharedRef<SDockTab>& Tab);
	void RemovePage(const TSharedRef<SDockTab>& Tab);
	void HandleBarIndexChanged(int Index);
	void HandleCloseRequested(int Index);
	int32 FindPage(const TSharedRef<SDockTab>& Tab) const;
	QWidget* MakeEmptyState() const;
	void KeepBarHeight();

	FDesktopApplication& Desktop;
	FContentSize FirstContentSize;
	QTabBar* Bar;
	QStackedWidget* Stack;
	// In the order of the bar.
	TArray<FPage> Pages;
	FDelegateHandle OpenedHandle;
	FDelegateHandle ForegroundedHandle;
	FDelegateHandle ClosedHandle;
};
