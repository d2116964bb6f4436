// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "MarkupStyle.h"
#include "Misc/Optional.h"
#include <string_view>

// Writes markup line by line. Neighbouring texts of one style share a run, and a run never crosses the end of a line. The texts taken are
// UTF-8 that FMarkdownSource made.
class FMarkupWriter
{
public:
	// The size is only a hint.
	explicit FMarkupWriter(int32 ExpectedSize) { Out.Reserve(ExpectedSize); }

	bool IsEmpty() const { return Out.IsEmpty(); }

	// All of & < > " are escaped. A tab becomes a blank, since it ends a cell, and so does a newline: behind a bare address md4c 0.4.8 may
	// hand over one with the text.
	void Text(const FMarkupStyle& Style, std::string_view Utf8);

	// One tab each between cells of a table.
	void EndCells(const FMarkupStyle& Style, int32 Count);
	void EndLine();

	// A code run is raw but for "&" and the closing form.
	void BeginCode();
	void CodeText(std::string_view Utf8);
	void CodeNewline();
	void EndCode();

	FString Finish();

private:
	void BeginRun(const FMarkupStyle& Style);
	void EndRun();

	FString Out;
	TOptional<FMarkupStyle> OpenRun;
};
