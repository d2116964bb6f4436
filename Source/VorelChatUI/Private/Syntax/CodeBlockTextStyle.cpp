// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Syntax/CodeBlockTextStyle.h"

#include "Decorators/CodeBlockStyle.h"

static const FTextBlockStyle& GetStyle(const FName& Name)
{
	return FCodeBlockStyle::Get().GetWidgetStyle<FTextBlockStyle>(Name);
}

FCodeBlockTextStyle::FCodeBlockTextStyle()
	: NormalTextStyle(GetStyle("CodeBlock.Normal"))
	, OperatorTextStyle(GetStyle("CodeBlock.Operator"))
	, KeywordTextStyle(GetStyle("CodeBlock.Keyword"))
	, StringTextStyle(GetStyle("CodeBlock.String"))
	, NumberTextStyle(GetStyle("CodeBlock.Number"))
	, CommentTextStyle(GetStyle("CodeBlock.Comment"))
	, PreProcessorKeywordTextStyle(GetStyle("CodeBlock.PreProcessorKeyword"))
{
}
