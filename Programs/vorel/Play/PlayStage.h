// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Options/ContentSize.h"

class QSlateWidget;
class QWidget;

// What a play file acts on: a window with menus and a tab, and what stands behind it.
class IPlayStage
{
public:
	virtual ~IPlayStage() = default;

	// False, with the reason, where no Tools menu has an entry of this label that can be invoked.
	virtual bool InvokeMenuEntry(const FString& Label, FString& OutProblem) = 0;

	// Of the tab in front; null where none is open.
	virtual QSlateWidget* GetTabContent() = 0;
	virtual QWidget& GetWindow() = 0;
	virtual void ResizeTabContent(const FContentSize& Size) = 0;

	virtual bool IsSignedIn() const = 0;
	virtual bool IsRequestUnderWay() const = 0;

	// Nothing is left to lay out or to paint.
	virtual bool IsPainted() const = 0;
	virtual int64 GetNumFrames() const = 0;

	// Addresses that were opened, in order.
	virtual TArray<FString> GetOpenedAddresses() const = 0;
};
