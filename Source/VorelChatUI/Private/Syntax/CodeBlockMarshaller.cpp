// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Syntax/CodeBlockMarshaller.h"

#include "Framework/Text/TextLayout.h"
#include "Syntax/CppSyntaxRules.h"
#include "Syntax/ParsedCode.h"

TSharedRef<FCodeBlockMarshaller> FCodeBlockMarshaller::Create()
{
	return MakeShareable(new FCodeBlockMarshaller(CreateCppTokenizer(), FCodeBlockTextStyle()));
}

FCodeBlockMarshaller::FCodeBlockMarshaller(const TSharedRef<FSyntaxTokenizer>& InTokenizer, const FCodeBlockTextStyle& InTextStyle)
	: FSyntaxHighlighterTextLayoutMarshaller(InTokenizer)
	, TextStyle(InTextStyle)
	, Code(FParsedCode::Create())
{
}

void FCodeBlockMarshaller::ParseTokens(
	const FString& SourceString, FTextLayout& TargetTextLayout, TArray<FSyntaxTokenizer::FTokenizedLine> TokenizedLines)
{
	Code->Parse(SourceString, TokenizedLines, TextStyle);
	TargetTextLayout.AddLines(Code->GetLines());
}
