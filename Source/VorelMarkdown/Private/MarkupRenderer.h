// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "BlockStack.h"
#include "CodeBlockText.h"
#include "LinkAddresses.h"
#include "MarkdownReader.h"
#include "MarkupWriter.h"
#include "SpanStack.h"

// Turns the reader's events into markup in one pass.
class FMarkupRenderer : public IMarkdownHandler
{
public:
	// The source must be the very text that is read, and outlive the renderer.
	explicit FMarkupRenderer(std::string_view Source);

	FString Finish() { return Writer.Finish(); }

	void EnterBlock(MD_BLOCKTYPE Type, const void* Detail) override;
	void LeaveBlock(MD_BLOCKTYPE Type) override;
	void EnterSpan(MD_SPANTYPE Type) override;
	void LeaveSpan(MD_SPANTYPE Type, const void* Detail) override;
	void Text(MD_TEXTTYPE Type, std::string_view Text) override;

private:
	void EnterContainer(MD_BLOCKTYPE Type, const void* Detail);
	void EnterTablePart(MD_BLOCKTYPE Type);
	void LeaveTablePart(MD_BLOCKTYPE Type);
	void EnterCode();
	void EnterHeading(unsigned Level);
	void AddRule();
	void EndCells();
	void AddHtml(std::string_view Text);
	void AddInlineCode(std::string_view Text);

	// Takes its place on the current line, or begins it.
	void AddText(const FMarkupStyle& Style, std::string_view Text);
	void AddHardBreak();

	FMarkupStyle GetBlockStyle() const;
	FMarkupStyle GetStyle() const;

	FMarkupWriter Writer;
	FBlockStack Blocks;
	FCodeBlockText CodeBlock;
	FLinkAddresses Addresses;
	bool bInCodeBlock = false;

	// Set in a heading or a table, whose text has its style whatever is around it.
	TOptional<EMarkupBlock> OwnBlock;
	bool bInTableHead = false;

	// Cells of the row that have ended since its last text, of which a row can have very many.
	int32 EndedCells = 0;
	bool bInHtmlBlock = false;

	FSpanStack Spans;
	bool bImageHasText = false;
};
