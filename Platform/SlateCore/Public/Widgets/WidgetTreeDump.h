// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class SWidget;
class SWindow;

/**
 * The widget tree as text, one widget a line, two blanks a level:
 *
 *   SType x,y wxh [collapsed] [hidden] [disabled] [focused] ["text"] [hint="..."] [name="..."] [tag=...]
 *
 * Positions and sizes are in units from the top left corner of the window's content, with at most two decimals. What is scrolled out of
 * view is listed where it would stand; an open popup follows the content as a further root; collapsed widgets and what is in them stand at
 * 0,0 with no size.
 */
class FWidgetTreeDump
{
public:
	static FString Dump(const SWindow& Window);

	/** In double quotes; \\, \", \n and \t are written as such. */
	static FString Quote(const FString& Text);
};
