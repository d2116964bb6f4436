// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Frame/TabWell.h"

#include "Framework/Docking/TabManager.h"
#include "QSlateWidget.h"
#include "QtConversion.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SWindow.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

FTabWell::FTabWell(FDesktopApplication& InDesktop, const FContentSize& InContentSize)
	: Desktop(InDesktop)
	, FirstContentSize(InContentSize)
	, Bar(new QTabBar)
	, Stack(new QStackedWidget)
{
	setObjectName(QStringLiteral("TabWell"));
	setAttribute(Qt::WA_StyledBackground);
	Bar->setTabsClosable(true);
	Bar->setExpanding(false);
	Bar->setFocusPolicy(Qt::NoFocus);
	KeepBarHeight();
	Stack->addWidget(MakeEmptyState());

	auto* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(0, 0, 0, 0);
	Layout->setSpacing(0);
	Layout->addWidget(Bar);
	Layout->addWidget(Stack, 1);

	connect(Bar, &QTabBar::currentChanged, this, &FTabWell::HandleBarIndexChanged);
	connect(Bar, &QTabBar::tabCloseRequested, this, &FTabWell::HandleCloseRequested);
	FGlobalTabmanager& Tabs = *FGlobalTabmanager::Get();
	OpenedHandle = Tabs.OnTabOpened.AddRaw(this, &FTabWell::AddPage);
	ForegroundedHandle = Tabs.OnTabForegrounded.AddRaw(this, &FTabWell::ShowPage);
	ClosedHandle = Tabs.OnTabClosed.AddRaw(this, &FTabWell::RemovePage);
}

FTabWell::~FTabWell()
{
	FGlobalTabmanager& Tabs = *FGlobalTabmanager::Get();
	Tabs.OnTabOpened.Remove(OpenedHandle);
	Tabs.OnTabForegrounded.Remove(ForegroundedHandle);
	Tabs.OnTabClosed.Remove(ClosedHandle);
}

// The content must not change its size when the first tab comes and the last one goes.
void FTabWell::KeepBarHeight()
{
	Bar->ensurePolished();
	Bar->addTab(QStringLiteral("Tab"));
	Bar->setFixedHeight(Bar->sizeHint().height());
	Bar->removeTab(0);
}

QWidget* FTabWell::MakeEmptyState() const
{
	auto* const Label = new QLabel(tr("<p style='font-size: 17px'>No tab is open</p>"
									  "<p>Choose <b>Vorel AI</b> in a Tools menu to ask the assistant.</p>"));
	Label->setObjectName(QStringLiteral("NoTab"));
	Label->setAlignment(Qt::AlignCenter);
	Label->setWordWrap(true);
	Label->setMinimumSize(1, 1);
	return Label;
}

QSize FTabWell::sizeHint() const
{
	return QSize(FirstContentSize.Width, FirstContentSize.Height + Bar->height());
}

QSlateWidget* FTabWell::GetContent() const
{
	const int32 Index = Bar->currentIndex();
	return Pages.IsValidIndex(Index) ? Pages[Index].Host : nullptr;
}

QSize FTabWell::GetContentSize() const
{
	return Stack->size();
}

void FTabWell::CloseForegroundTab()
{
	HandleCloseRequested(Bar->currentIndex());
}

void FTabWell::AddPage(const TSharedRef<SDockTab>& Tab)
{
	const TSharedRef<SWindow> Window = SNew(SWindow)[Tab->GetContent()];
	auto* const Host = new QSlateWidget(Desktop, Window);
	Pages.Add({Tab, Host});
	Stack->addWidget(Host);
	const QSignalBlocker Quiet(Bar);
	Bar->addTab(ToQString(Tab->GetTabLabel().ToString()));
}

void FTabWell::ShowPage(const TSharedRef<SDockTab>& Tab)
{
	const int32 Index = FindPage(Tab);
	check(Index != INDEX_NONE);
	const QSignalBlocker Quiet(Bar);
	Bar->setCurrentIndex(Index);
	Stack->setCurrentWidget(Pages[Index].Host);
	Pages[Index].Host->setFocus(Qt::OtherFocusReason);
}

void FTabWell::RemovePage(const TSharedRef<SDockTab>& Tab)
{
	const int32 Index = FindPage(Tab);
	check(Index != INDEX_NONE);
	QSlateWidget* const Host = Pages[Index].Host;
	Pages.RemoveAt(Index);
	const QSignalBlocker Quiet(Bar);
	Bar->removeTab(Index);
	Stack->removeWidget(Host);
	// The tab may have been closed by an event that the host is still handling.
	Host->deleteLater();
}

void FTabWell::HandleBarIndexChanged(int Index)
{
	const TSharedPtr<SDockTab> Tab = Pages.IsValidIndex(Index) ? Pages[Index].Tab.Pin() : nullptr;
	if (Tab)
	{
		FGlobalTabmanager::Get()->SetForegroundTab(Tab.ToSharedRef());
	}
}

void FTabWell::HandleCloseRequested(int Index)
{
	const TSharedPtr<SDockTab> Tab = Pages.IsValidIndex(Index) ? Pages[Index].Tab.Pin() : nullptr;
	if (Tab)
	{
		Tab->RequestCloseTab();
	}
}

int32 FTabWell::FindPage(const TSharedRef<SDockTab>& Tab) const
{
	return Pages.IndexOfByPredicate([&Tab](const FPage& Page) { return Page.Tab == Tab; });
}
