// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Docking/TabId.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SNullWidget.h"

class SDockTab;

enum ETabRole
{
	MajorTab,
	PanelTab,
	NomadTab,
	DocumentTab,
	NumRoles
};

DECLARE_DELEGATE_OneParam(FOnTabClosedCallback, TSharedRef<SDockTab>);

// One tab: the host's frame draws its label and shows its content.
class SDockTab : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDockTab) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ATTRIBUTE(FText, Label)
	SLATE_ARGUMENT(ETabRole, TabRole)
	SLATE_EVENT(FOnTabClosedCallback, OnTabClosed)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	TSharedRef<SWidget> GetContent() const { return Content; }
	ETabRole GetTabRole() const { return TabRole; }
	const FTabId& GetLayoutIdentifier() const { return LayoutIdentifier; }

	// Its own, else the display name of the tab's spawner.
	FText GetTabLabel() const { return Label.IsSet() ? Label.Get() : DefaultLabel.Get(); }

	bool IsForeground() const;
	// Closes it. False where it is not open.
	bool RequestCloseTab();
	void SetOnTabClosed(const FOnTabClosedCallback& InHandler) { OnTabClosed = InHandler; }

private:
	friend class FGlobalTabmanager;

	TSharedRef<SWidget> Content = SNullWidget::NullWidget;
	TAttribute<FText> Label;
	TAttribute<FText> DefaultLabel;
	ETabRole TabRole = ETabRole::MajorTab;
	FTabId LayoutIdentifier;
	FOnTabClosedCallback OnTabClosed;
};
