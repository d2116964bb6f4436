// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Syntax/CodeLineParser.h"

#include "Framework/Text/SlateTextRun.h"
#include "Syntax/CodeBlockTextStyle.h"
#include "Syntax/CodeWhiteSpaceRun.h"

#include <cwctype>

namespace
{

constexpr int32 NumSpacesPerTab = 4;

using FStyleMember = FTextBlockStyle FCodeBlockTextStyle::*;

// What a token's run is called and looks like, and what comes behind it.
struct FTokenLook
{
	FRunInfo RunInfo;
	FStyleMember Style;
	ECodeParseState NextState;
};

struct FMark
{
	ECodeParseState State;
	const TCHAR* Text;
	FTokenLook Look;
};

const FRunInfo WhiteSpaceRun(TEXT("CodeBlock.WhiteSpace"));
const FRunInfo NormalRun(TEXT("CodeBlock.Normal"));
const FRunInfo StringRun(TEXT("CodeBlock.String"));
const FRunInfo CommentRun(TEXT("CodeBlock.Comment"));

constexpr FStyleMember StringStyle = &FCodeBlockTextStyle::StringTextStyle;
constexpr FStyleMember CommentStyle = &FCodeBlockTextStyle::CommentTextStyle;

// A closing quote is called normal and looks like its string.
const FMark Marks[] = {
	{ECodeParseState::None, TEXT("\""), {StringRun, StringStyle, ECodeParseState::InString}},
	{ECodeParseState::None, TEXT("'"), {StringRun, StringStyle, ECodeParseState::InCharacter}},
	{ECodeParseState::None, TEXT("//"), {CommentRun, CommentStyle, ECodeParseState::InLineComment}},
	{ECodeParseState::None, TEXT("/*"), {CommentRun, CommentStyle, ECodeParseState::InBlockComment}},
	{ECodeParseState::InString, TEXT("\""), {NormalRun, StringStyle, ECodeParseState::None}},
	{ECodeParseState::InCharacter, TEXT("'"), {NormalRun, StringStyle, ECodeParseState::None}},
	{ECodeParseState::InBlockComment, TEXT("*/"), {CommentRun, CommentStyle, ECodeParseState::None}},
};

const FTokenLook PreProcessorLook = {
	FRunInfo(TEXT("CodeBlock.PreProcessorKeyword")), &FCodeBlockTextStyle::PreProcessorKeywordTextStyle, ECodeParseState::None};
const FTokenLook KeywordLook = {FRunInfo(TEXT("CodeBlock.Keyword")), &FCodeBlockTextStyle::KeywordTextStyle, ECodeParseState::None};
const FTokenLook OperatorLook = {FRunInfo(TEXT("CodeBlock.Operator")), &FCodeBlockTextStyle::OperatorTextStyle, ECodeParseState::None};

// What no rule matches, and marks that mean nothing where they stand. By state.
const FTokenLook OtherLooks[] = {
	{NormalRun, &FCodeBlockTextStyle::NormalTextStyle, ECodeParseState::None},
	{StringRun, StringStyle, ECodeParseState::InString},
	{StringRun, StringStyle, ECodeParseState::InCharacter},
	{CommentRun, CommentStyle, ECodeParseState::InLineComment},
	{CommentRun, CommentStyle, ECodeParseState::InBlockComment},
};

const FTokenLook& ClassifySyntax(FStringView TokenText, ECodeParseState State)
{
	for (const FMark& Mark : Marks)
	{
		if (Mark.State == State && TokenText.Equals(Mark.Text))
		{
			return Mark.Look;
		}
	}
	if (State != ECodeParseState::None)
	{
		return OtherLooks[static_cast<uint8>(State)];
	}
	if (TokenText[0] == TEXT('#'))
	{
		return PreProcessorLook;
	}
	return std::iswalpha(TokenText[0]) ? KeywordLook : OperatorLook;
}

const FTokenLook& Classify(FSyntaxTokenizer::ETokenType Type, FStringView TokenText, ECodeParseState State)
{
	return Type == FSyntaxTokenizer::ETokenType::Syntax ? ClassifySyntax(TokenText, State) : OtherLooks[static_cast<uint8>(State)];
}

} // namespace

FCodeLineParser::FCodeLineParser(FStringView InSource, const FCodeBlockTextStyle& InTextStyle, ECodeParseState InState)
	: Source(InSource)
	, TextStyle(InTextStyle)
	, State(InState)
{
}

FTextLayout::FNewLineData FCodeLineParser::ParseLine(const FSyntaxTokenizer::FTokenizedLine& Line)
{
	const TSharedRef<FString> ModelString = MakeShared<FString>();
	ModelString->Reserve(Line.Range.Len());
	TArray<TSharedRef<IRun>> Runs;
	Runs.Reserve(Line.Tokens.Num());
	if (State == ECodeParseState::InLineComment)
	{
		State = ECodeParseState::None;
	}
	for (const FSyntaxTokenizer::FToken& Token : Line.Tokens)
	{
		Runs.Add(ParseToken(Token, ModelString));
	}
	return {ModelString, MoveTemp(Runs)};
}

TSharedRef<IRun> FCodeLineParser::ParseToken(const FSyntaxTokenizer::FToken& Token, const TSharedRef<FString>& ModelString)
{
	const FStringView TokenText = Source.Mid(Token.Range.BeginIndex, Token.Range.Len());
	const FTextRange ModelRange(ModelString->Len(), ModelString->Len() + TokenText.Len());
	ModelString->Append(TokenText);
	if (TokenText.TrimEnd().IsEmpty())
	{
		return FCodeWhiteSpaceRun::Create(WhiteSpaceRun, ModelString, TextStyle.NormalTextStyle, ModelRange, NumSpacesPerTab);
	}
	const FTokenLook& Look = Classify(Token.Type, TokenText, State);
	State = Look.NextState;
	return FSlateTextRun::Create(Look.RunInfo, ModelString, TextStyle.*Look.Style, ModelRange);
}
