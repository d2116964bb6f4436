// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

#include <QMenu>

struct FToolMenuEntry;

// Shows one of the editor's tool menus.
class FToolsMenu : public QMenu
{
public:
	FToolsMenu(const FName& InPath, const QString& Title);
	~FToolsMenu() override;

	// Null where there is no entry of this label, letter case counting.
	QAction* FindEntry(const QString& Label) const;

private:
	void RebuildSoon();
	void Rebuild();
	void AddEntry(const FToolMenuEntry& Entry);

	FName Path;
	FDelegateHandle MenusChangedHandle;
};
