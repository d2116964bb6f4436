// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

enum EOrientation : uint8
{
	Orient_Horizontal,
	Orient_Vertical
};

enum EHorizontalAlignment : uint8
{
	HAlign_Fill,
	HAlign_Left,
	HAlign_Center,
	HAlign_Right
};

enum EVerticalAlignment : uint8
{
	VAlign_Fill,
	VAlign_Top,
	VAlign_Center,
	VAlign_Bottom
};

namespace ETextCommit
{
enum Type : uint8
{
	Default,
	OnEnter,
	OnUserMovedFocus,
	OnCleared
};
}

namespace ESelectInfo
{
enum Type : uint8
{
	OnKeyPress,
	OnNavigation,
	OnMouseClick,
	Direct
};
}

/** Why a widget got or lost the focus. */
enum class EFocusCause : uint8
{
	Mouse,
	Navigation,
	SetDirectly,
	Cleared,
	WindowActivate
};
