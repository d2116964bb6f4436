// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "GenericPlatform/ICursor.h"

/** What a widget answers when asked for the mouse cursor. */
class FCursorReply
{
public:
	static FCursorReply Cursor(EMouseCursor::Type InCursor) { return FCursorReply(InCursor, true); }
	static FCursorReply Unhandled() { return FCursorReply(EMouseCursor::Default, false); }

	bool IsEventHandled() const { return bHandled; }
	EMouseCursor::Type GetCursorType() const { return CursorType; }

private:
	FCursorReply(EMouseCursor::Type InCursor, bool bInHandled)
		: CursorType(InCursor)
		, bHandled(bInHandled)
	{
	}

	EMouseCursor::Type CursorType;
	bool bHandled;
};
