// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

/** What became stale; each costs no more than it must. */
enum class EInvalidateWidgetReason : uint8
{
	None = 0,
	/** What the widget draws. */
	Paint = 1 << 0,
	/** Its desired size or where its children stand; includes Paint. */
	Layout = 1 << 1,
	/** Where it is drawn within its room: its parent places it anew, no size is computed. */
	RenderTransform = 1 << 2,
	/** Whether it takes room: its parent's desired size. */
	Visibility = 1 << 3
};

constexpr bool EnumHasReason(EInvalidateWidgetReason Reasons, EInvalidateWidgetReason Reason)
{
	return (static_cast<uint8>(Reasons) & static_cast<uint8>(Reason)) != 0;
}
