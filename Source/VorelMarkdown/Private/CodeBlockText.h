// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string_view>

class FMarkupWriter;

// Writes a code block as a code run. The reader hands over each line as blanks for its indentation, its text, and "\n"; here the tabs that
// those blanks stood for come back, and the last newline is left out.
class FCodeBlockText
{
public:
	FCodeBlockText(FMarkupWriter& InWriter, std::string_view InSource)
		: Writer(InWriter)
		, Source(InSource)
	{
	}

	void Begin();
	void Text(std::string_view Piece);
	void End();

private:
	bool IsFromSource(std::string_view Piece) const;
	void EndLine();
	void WriteNewlines(int32 Count);

	// The indentation of the current line, whose text starts at the given position of the source.
	void WriteIndent(size_t TextStart);

	FMarkupWriter& Writer;
	std::string_view Source;

	// Of the current line in the source; npos as long as no text of the block told where it stands.
	size_t LineStart = std::string_view::npos;

	// In columns: of the current line's code, and of what lists and quotes put before each line, once that is known.
	size_t Indent = 0;
	size_t ContainerIndent = 0;
	int32 PendingNewlines = 0;
};
