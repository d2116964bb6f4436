// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.
#pragma once

/** The width to wrap at, of a fixed and an allotted one of which each counts if it is more than zero; zero if none does. In units. */
inline float FindWrappingWidth(float WrapTextAt, float AllottedWidth)
{
	if (WrapTextAt <= 0.0f || AllottedWidth <= 0.0f)
	{
		return WrapTextAt > 0.0f ? WrapTextAt : AllottedWidth;
	}
	return WrapTextAt < AllottedWidth ? WrapTextAt : AllottedWidth;
}
