// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupRenderer.h"

#include "MarkdownEntities.h"
#include "MarkdownSource.h"

namespace
{
constexpr std::string_view OpenTask = "\u2610";
constexpr std::string_view DoneTask = "\u2611";

// The glyphs of this one touch and make a line.
constexpr std::string_view RuleGlyph = "\u2500";
constexpr int32 RuleLength = 24;

EMarkupWord GetWord(MD_SPANTYPE Type)
{
	switch (Type)
	{
	case MD_SPAN_EM:
		return EMarkupWord::Emphasis;
	case MD_SPAN_STRONG:
		return EMarkupWord::Strong;
	case MD_SPAN_DEL:
		return EMarkupWord::Strikethrough;
	case MD_SPAN_A:
		return EMarkupWord::Link;
	case MD_SPAN_CODE:
		return EMarkupWord::InlineCode;
	case MD_SPAN_IMG:
		return EMarkupWord::Image;
	default:
		checkNoEntry();
	}
}

int32 EstimateMarkupSize(std::string_view Source)
{
	return static_cast<int32>(FMath::Min<size_t>(Source.size() + Source.size() / 2, MAX_int32));
}
} // namespace

FMarkupRenderer::FMarkupRenderer(std::string_view Source)
	: Writer(EstimateMarkupSize(Source))
	, Blocks(Writer)
	, CodeBlock(Writer, Source)
	, Addresses(Source.size())
{
}

void FMarkupRenderer::EnterBlock(MD_BLOCKTYPE Type, const void* Detail)
{
	Spans.Clear();
	switch (Type)
	{
	case MD_BLOCK_DOC:
		return;
	case MD_BLOCK_QUOTE:
	case MD_BLOCK_UL:
	case MD_BLOCK_OL:
	case MD_BLOCK_LI:
		return EnterContainer(Type, Detail);
	case MD_BLOCK_HR:
		return AddRule();
	case MD_BLOCK_H:
		return EnterHeading(static_cast<const MD_BLOCK_H_DETAIL*>(Detail)->level);
	case MD_BLOCK_CODE:
		return EnterCode();
	case MD_BLOCK_HTML:
		bInHtmlBlock = true;
		return Blocks.BeginBlock();
	case MD_BLOCK_P:
		return Blocks.BeginBlock();
	default:
		return EnterTablePart(Type);
	}
}

void FMarkupRenderer::LeaveBlock(MD_BLOCKTYPE Type)
{
	Spans.Clear();
	switch (Type)
	{
	case MD_BLOCK_QUOTE:
	case MD_BLOCK_UL:
	case MD_BLOCK_OL:
		return Blocks.LeaveContainer();
	case MD_BLOCK_LI:
		return Blocks.LeaveItem();
	case MD_BLOCK_H:
		OwnBlock.Reset();
		return Blocks.EndHeading();
	case MD_BLOCK_CODE:
		bInCodeBlock = false;
		CodeBlock.End();
		return Blocks.EndCode();
	case MD_BLOCK_DOC:
	case MD_BLOCK_HR:
	case MD_BLOCK_HTML:
	case MD_BLOCK_P:
		bInHtmlBlock = false;
		return Blocks.EndBlock();
	default:
		return LeaveTablePart(Type);
	}
}

void FMarkupRenderer::EnterContainer(MD_BLOCKTYPE Type, const void* Detail)
{
	if (Type == MD_BLOCK_QUOTE)
	{
		Blocks.EnterQuote();
	}
	else if (Type == MD_BLOCK_UL)
	{
		Blocks.EnterBulletList(static_cast<const MD_BLOCK_UL_DETAIL*>(Detail)->is_tight);
	}
	else if (Type == MD_BLOCK_OL)
	{
		const auto& List = *static_cast<const MD_BLOCK_OL_DETAIL*>(Detail);
		Blocks.EnterNumberedList(List.is_tight, List.start, List.mark_delimiter);
	}
	else
	{
		const auto& Item = *static_cast<const MD_BLOCK_LI_DETAIL*>(Detail);
		Blocks.EnterItem(!Item.is_task ? "" : Item.task_mark == ' ' ? OpenTask : DoneTask);
	}
}

void FMarkupRenderer::EnterTablePart(MD_BLOCKTYPE Type)
{
	switch (Type)
	{
	case MD_BLOCK_TABLE:
		OwnBlock = EMarkupBlock::Table;
		return Blocks.BeginBlock();
	case MD_BLOCK_THEAD:
	case MD_BLOCK_TBODY:
		bInTableHead = Type == MD_BLOCK_THEAD;
		return;
	case MD_BLOCK_TR:
		// The first cell begins without an end before it.
		EndedCells = -1;
		return Blocks.OpenLine(GetBlockStyle());
	default:
		++EndedCells;
	}
}

void FMarkupRenderer::LeaveTablePart(MD_BLOCKTYPE Type)
{
	if (Type == MD_BLOCK_TR)
	{
		EndCells();
		Blocks.EndBlock();
	}
	else if (Type == MD_BLOCK_TABLE)
	{
		OwnBlock.Reset();
		bInTableHead = false;
	}
}

void FMarkupRenderer::EndCells()
{
	if (EndedCells > 0)
	{
		Writer.EndCells(GetBlockStyle(), EndedCells);
	}
	EndedCells = 0;
}

void FMarkupRenderer::EnterHeading(unsigned Level)
{
	Blocks.BeginBlock();
	OwnBlock = static_cast<EMarkupBlock>(static_cast<uint8>(EMarkupBlock::Header1) + Level - 1);
}

void FMarkupRenderer::AddRule()
{
	Blocks.BeginBlock();
	FMarkupStyle Style = Blocks.GetTextStyle();
	Style.Block = EMarkupBlock::HorizontalRule;
	Blocks.OpenLine(Style);
	for (int32 Index = 0; Index < RuleLength; ++Index)
	{
		Writer.Text(Style, RuleGlyph);
	}
}

void FMarkupRenderer::EnterCode()
{
	Blocks.BeginBlock();
	Blocks.OpenCodeLine();
	CodeBlock.Begin();
	bInCodeBlock = true;
}

void FMarkupRenderer::EnterSpan(MD_SPANTYPE Type)
{
	if (Type == MD_SPAN_A)
	{
		Addresses.BeginLink();
	}
	if (Type == MD_SPAN_IMG && !Spans.IsOpen(MD_SPAN_IMG))
	{
		bImageHasText = false;
	}
	// The description of an image has no formats of its own.
	const FMarkupStyle Outer = GetStyle();
	Spans.Enter(Type, Spans.IsOpen(MD_SPAN_IMG) ? Outer : Outer.With(GetWord(Type)));
}

void FMarkupRenderer::LeaveSpan(MD_SPANTYPE Type, const void* Detail)
{
	const FMarkupStyle Style = GetStyle();
	if (!Spans.Leave(Type) || Spans.IsOpen(MD_SPAN_IMG))
	{
		return;
	}
	if (Type == MD_SPAN_A)
	{
		AddText(GetStyle(), Addresses.EndLink(static_cast<const MD_SPAN_A_DETAIL*>(Detail)->href));
	}
	else if (Type == MD_SPAN_IMG && !bImageHasText)
	{
		AddText(Style, Addresses.GetImageText(static_cast<const MD_SPAN_IMG_DETAIL*>(Detail)->src));
	}
}

void FMarkupRenderer::Text(MD_TEXTTYPE Type, std::string_view Text)
{
	switch (Type)
	{
	case MD_TEXT_BR:
		return AddHardBreak();
	case MD_TEXT_SOFTBR:
		return AddText(GetStyle(), " ");
	case MD_TEXT_ENTITY:
		return AddText(GetStyle(), DecodeEntity(Text));
	case MD_TEXT_HTML:
		return AddHtml(Text);
	case MD_TEXT_CODE:
		return bInCodeBlock ? CodeBlock.Text(Text) : AddInlineCode(Text);
	default:
		return AddText(GetStyle(), Text);
	}
}

void FMarkupRenderer::AddText(const FMarkupStyle& Style, std::string_view Text)
{
	if (Text.empty() || Text == std::string_view(&FMarkdownSource::GuardMark, 1))
	{
		return;
	}
	Blocks.OpenLine(GetBlockStyle());
	EndCells();
	Addresses.AddLinkText(Text);
	bImageHasText = true;
	Writer.Text(Style, Text);
}

void FMarkupRenderer::AddHtml(std::string_view Text)
{
	if (Text != "\n")
	{
		AddText(GetStyle(), Text);
	}
	else if (bInHtmlBlock)
	{
		Blocks.EndLine();
	}
	else
	{
		AddText(GetStyle(), " ");
	}
}

void FMarkupRenderer::AddInlineCode(std::string_view Text)
{
	// In a table a backslash keeps a pipe from ending the cell even in code, where it stands for itself otherwise.
	const bool bInTable = OwnBlock == EMarkupBlock::Table;
	for (size_t Escape; bInTable && (Escape = Text.find("\\|")) != std::string_view::npos; Text.remove_prefix(Escape + 1))
	{
		AddText(GetStyle(), Text.substr(0, Escape));
	}
	AddText(GetStyle(), Text);
}

void FMarkupRenderer::AddHardBreak()
{
	if (Spans.IsOpen(MD_SPAN_IMG))
	{
		return AddText(GetStyle(), " ");
	}
	Blocks.EndBlock();
}

FMarkupStyle FMarkupRenderer::GetBlockStyle() const
{
	FMarkupStyle Style = Blocks.GetTextStyle();
	Style.Block = OwnBlock.Get(Style.Block);
	return Style;
}

FMarkupStyle FMarkupRenderer::GetStyle() const
{
	const FMarkupStyle* Style = Spans.GetStyle();
	if (Style)
	{
		return *Style;
	}
	return bInTableHead ? GetBlockStyle().With(EMarkupWord::Strong) : GetBlockStyle();
}
