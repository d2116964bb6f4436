// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/ConstructableUI.h"

#include "Widgets/SNullWidget.h"

TSharedRef<SWidget> ConstructableUI::ConstructInterface()
{
	return SNullWidget::NullWidget;
}
