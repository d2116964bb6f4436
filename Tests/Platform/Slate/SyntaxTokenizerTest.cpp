// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/SyntaxTokenizer.h"
#include "Support/Printers.h"
#include <gtest/gtest.h>

namespace
{

TSharedRef<FSyntaxTokenizer> MakeTokenizer(std::initializer_list<const TCHAR*> Texts)
{
	TArray<FSyntaxTokenizer::FRule> Rules;
	for (const TCHAR* Text : Texts)
	{
		Rules.Emplace(FString(Text));
	}
	return FSyntaxTokenizer::Create(MoveTemp(Rules));
}

// One line for each line; "[for]" is what a rule matched, "(x)" anything else.
FString Tokenize(const FSyntaxTokenizer& Tokenizer, const FString& Text)
{
	TArray<FSyntaxTokenizer::FTokenizedLine> Lines;
	Tokenizer.Process(Lines, Text);
	FString Result;
	for (const FSyntaxTokenizer::FTokenizedLine& Line : Lines)
	{
		int32 End = Line.Range.BeginIndex;
		for (const FSyntaxTokenizer::FToken& Token : Line.Tokens)
		{
			EXPECT_EQ(Token.Range.BeginIndex, End);
			End = Token.Range.EndIndex;
			const bool bSyntax = Token.Type == FSyntaxTokenizer::ETokenType::Syntax;
			Result +=
				(bSyntax ? TEXT("[") : TEXT("(")) + Text.Mid(Token.Range.BeginIndex, Token.Range.Len()) + (bSyntax ? TEXT("]") : TEXT(")"));
		}
		EXPECT_EQ(End, Line.Range.EndIndex);
		Result += TEXT("\n");
	}
	return Result.LeftChop(1);
}

} // namespace

TEST(SyntaxTokenizer, CutsAtTheLongestRuleAndAtWholeWords)
{
	const TSharedRef<FSyntaxTokenizer> Tokenizer = MakeTokenizer({TEXT(""), TEXT("&"), TEXT("&&"), TEXT("<"), TEXT("<<="), TEXT("-"),
		TEXT("->"), TEXT("\""), TEXT("."), TEXT("do"), TEXT("double"), TEXT("for"), TEXT("and"), TEXT("and_eq"), TEXT("#if"),
		TEXT("#ifdef"), TEXT("&"), TEXT("end for"), TEXT("\u00e9t\u00e9"), TEXT("\U0001F600!"), TEXT("x=")});
	const struct
	{
		const TCHAR* Text;
		const TCHAR* Tokens;
	} Rows[] = {
		{TEXT("a&&&b"), TEXT("(a)[&&][&](b)")},
		{TEXT("a<<=b<<b"), TEXT("(a)[<<=](b)[<][<](b)")},
		{TEXT("a->b-c"), TEXT("(a)[->](b)[-](c)")},
		{TEXT("do double dou doubled"), TEXT("[do]( )[double]( )(dou)( )(doubled)")},
		{TEXT("format for2 2for _for for_ for"), TEXT("(format)( )(for2)( )(2for)( )(_for)( )(for_)( )[for]")},
		{TEXT("for\u00e9 \u00e9for fo\u0308r for\u0301 for\U00020000"),
			TEXT("(for\u00e9)( )(\u00e9for)( )(fo\u0308r)( )(for\u0301)( )(for\U00020000)")},
		{TEXT("\u00e9t\u00e9 \u00e9t\u00e9s for\U0001F600! \u2192for"),
			TEXT("[\u00e9t\u00e9]( )(\u00e9t\u00e9s)( )[for][\U0001F600!]( )(\u2192)[for]")},
		{TEXT("x.and_eq x.and"), TEXT("(x)[.][and_eq]( )(x)[.][and]")},
		{TEXT("a#if #iffy # if #ifdef"), TEXT("(a)[#if]( )(#iffy)( )(#)( )(if)( )[#ifdef]")},
		{TEXT("u8\"for\""), TEXT("(u8)[\"][for][\"]")},
		{TEXT("end for end format xx= x="), TEXT("[end for]( )(end)( )(format)( )(xx=)( )[x=]")},
		{TEXT("\t \\$42\u00a0\u3000for"), TEXT("(\t )(\\$42)(\u00a0\u3000)[for]")},
		{TEXT(""), TEXT("()")},
		{TEXT("\n\r\na\r\n\rb\r\r\n"), TEXT("()\n()\n(a)\n(\r)(b)(\r)\n()")},
	};
	for (const auto& Row : Rows)
	{
		EXPECT_TEXT(Tokenize(*Tokenizer, Row.Text), Row.Tokens);
	}
}
