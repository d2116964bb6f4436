// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Frame/ToolsMenu.h"

#include "QtConversion.h"
#include "Styling/SlateBrush.h"
#include "ToolMenus.h"

FToolsMenu::FToolsMenu(const FName& InPath, const QString& Title)
	: QMenu(Title)
	, Path(InPath)
{
	setToolTipsVisible(true);
	MenusChangedHandle = UToolMenus::Get()->OnMenusChanged.AddRaw(this, &FToolsMenu::RebuildSoon);
	connect(this, &QMenu::aboutToShow, this, &FToolsMenu::Rebuild);
	Rebuild();
}

FToolsMenu::~FToolsMenu()
{
	UToolMenus::Get()->OnMenusChanged.Remove(MenusChangedHandle);
}

// The change may come from an entry of this menu, which must not go while it is invoked.
void FToolsMenu::RebuildSoon()
{
	QMetaObject::invokeMethod(
		this, [this] { Rebuild(); }, Qt::QueuedConnection);
}

void FToolsMenu::Rebuild()
{
	clear();
	const UToolMenu* const Menu = UToolMenus::Get()->FindMenu(Path);
	if (!Menu)
	{
		return;
	}
	for (const FToolMenuSection& Section : Menu->Sections)
	{
		addSeparator();
		for (const FToolMenuEntry& Entry : Section.Entries)
		{
			AddEntry(Entry);
		}
	}
}

void FToolsMenu::AddEntry(const FToolMenuEntry& Entry)
{
	QAction* const Action = addAction(ToQString(Entry.GetLabel().ToString()));
	Action->setToolTip(ToQString(Entry.GetToolTip().ToString()));
	Action->setEnabled(Entry.CanExecute());
	if (const FSlateBrush* const Icon = Entry.Icon.IsSet() ? Entry.Icon.Get().GetIcon() : nullptr)
	{
		Action->setIcon(QIcon(ToQString(Icon->GetResourceName().ToString())));
	}
	connect(Action, &QAction::triggered, this, [Entry] { Entry.Execute(); });
}

QAction* FToolsMenu::FindEntry(const QString& Label) const
{
	for (QAction* const Action : actions())
	{
		if (!Action->isSeparator() && Action->text() == Label)
		{
			return Action;
		}
	}
	return nullptr;
}
