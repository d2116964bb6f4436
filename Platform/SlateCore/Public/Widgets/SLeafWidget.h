// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/SWidget.h"

/** A widget without children. */
class SLeafWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override { return &FNoChildren::Get(); }

protected:
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override {}
};
