// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class SWidget;

/** A place for one child. While nothing is attached it holds SNullWidget::NullWidget. */
class FSlotBase
{
public:
	FSlotBase();
	virtual ~FSlotBase();
	FSlotBase(const FSlotBase&) = delete;
	FSlotBase& operator=(const FSlotBase&) = delete;

	/** The widget leaves whatever parent it had. */
	void AttachWidget(const TSharedRef<SWidget>& InWidget);
	void DetachWidget();
	const TSharedRef<SWidget>& GetWidget() const { return Widget; }

	/** Makes the slot part of a widget; its child becomes that widget's. */
	void SetOwner(SWidget& InOwner);
	SWidget* GetOwner() const { return Owner; }

	/** Its place among its siblings, kept by the list that holds it. */
	int32 GetIndex() const { return Index; }
	void SetIndex(int32 InIndex) { Index = InIndex; }

protected:
	/** The owner must be laid out again. */
	void InvalidateOwner();

private:
	friend class SWidget;

	TSharedRef<SWidget> Widget;
	SWidget* Owner = nullptr;
	int32 Index = 0;
};
