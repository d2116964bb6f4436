// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Widgets/Docking/SDockTab.h"
#include "Framework/Docking/TabManager.h"

void SDockTab::Construct(const FArguments& InArgs)
{
	Content = InArgs._Content.Widget;
	Label = InArgs._Label;
	TabRole = InArgs._TabRole;
	OnTabClosed = InArgs._OnTabClosed;
}

bool SDockTab::IsForeground() const
{
	return FGlobalTabmanager::Get()->GetForegroundTab().Get() == this;
}

bool SDockTab::RequestCloseTab()
{
	return FGlobalTabmanager::Get()->CloseTab(SharedThis(this));
}
