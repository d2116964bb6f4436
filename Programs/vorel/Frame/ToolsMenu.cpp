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
	QMetaObject::invokeMethod(this, [this] { Rebuild(); }, Qt::QueuedConnection);
}

void FToolsMenu::Rebuild()
{
	clear();
	const UToolMenu* const Menu = UToolMenus::Get()->FindMenu(Path);
	for (const FToolMenuSection& Section : Menu ? Menu->Sections : TArray<FToolMenuSection>())
	{
		addSection(ToQString(Section.Name.ToString()));
		for (const FToolMenuEntry& Entry : Section.Entries)
		{
			AddEntry(Section.Name, Entry);
		}
	}
}

void FToolsMenu::AddEntry(const FName& Section, const FToolMenuEntry& Entry)
{
	QAction* const Action = addAction(ToQString(Entry.GetLabel().ToString()));
	Action->setToolTip(ToQString(Entry.GetToolTip().ToString()));
	Action->setEnabled(Entry.CanExecute());
	if (const FSlateBrush* const Icon = Entry.Icon.IsSet() ? Entry.Icon.Get().GetIcon() : nullptr)
	{
		Action->setIcon(QIcon(ToQString(Icon->GetResourceName().ToString())));
	}
	connect(Action, &QAction::triggered, this, [this, Section, Name = Entry.Name] { Execute(Section, Name); });
}

// The entry is looked up anew: what was known when the menu was drawn may be gone.
void FToolsMenu::Execute(const FName& Section, const FName& Entry)
{
	if (const FToolMenuEntry* const Found = FindInModel(Section, Entry))
	{
		Found->Execute();
	}
}

const FToolMenuEntry* FToolsMenu::FindInModel(const FName& Section, const FName& Entry) const
{
	const UToolMenu* const Menu = UToolMenus::Get()->FindMenu(Path);
	for (const FToolMenuSection& Candidate : Menu ? Menu->Sections : TArray<FToolMenuSection>())
	{
		if (Candidate.Name == Section)
		{
			return Candidate.FindEntry(Entry);
		}
	}
	return nullptr;
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
