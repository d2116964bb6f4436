// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Syntax/CodeBlockMarshaller.h"

#include "Framework/Text/TextLayout.h"
#include "Syntax/CppSyntaxRules.h"
#include "Syntax/ParsedCode.h"

static TSharedRef<FSyntaxTokenizer> CreateTokenizer()
{
	TArray<FSyntaxTokenizer::FRule> Rules;
	for (const TArray<FString>* Table : {&CppOperatorRules, &CppKeywordRules, &CppPreProcessorRules})
	{
		for (const FString& MatchText : *Table)
		{
			Rules.Emplace(MatchText);
		}
	}
	return FSyntaxTokenizer::Create(MoveTemp(Rules));
}

TSharedRef<FCodeBlockMarshaller> FCodeBlockMarshaller::Create()
{
	return MakeShareable(new FCodeBlockMarshaller(CreateTokenizer(), FCodeBlockTextStyle()));
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
