// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/SyntaxTokenizer.h"

#include "Containers/StringView.h"
#include "Misc/Char.h"
#include "SyntaxMatcher.h"
#include "TextLines.h"

#include <algorithm>

namespace
{
/** Each sort of text that is shown has one list of rules. */
constexpr int32 MaxKeptTokenizers = 4;

/** Cuts one line. */
class FLineCutter
{
public:
	FLineCutter(const FSyntaxMatcher& InMatcher, FStringView InText, FSyntaxTokenizer::FTokenizedLine& InResult)
		: Matcher(InMatcher)
		, Text(InText.Left(InResult.Range.EndIndex))
		, Result(InResult)
		, LiteralBegin(InResult.Range.BeginIndex)
	{
		constexpr int32 UsualTokenLength = 3;
		Result.Tokens.Reserve(Result.Range.Len() / UsualTokenLength + 1);
	}

	void Cut()
	{
		for (int32 Index = LiteralBegin; Index < Text.Len();)
		{
			Index = ReadNext(Index);
		}
		FinishLiteral(Text.Len());
		if (Result.Tokens.IsEmpty())
		{
			Add(FSyntaxTokenizer::ETokenType::Literal, Text.Len(), Text.Len());
		}
	}

private:
	/** Returns where a rule may match next: never inside a word, since words are read whole. */
	int32 ReadNext(int32 Index)
	{
		const int32 RuleEnd = Matcher.Match(Text, Index);
		if (RuleEnd != INDEX_NONE)
		{
			FinishLiteral(Index);
			Add(FSyntaxTokenizer::ETokenType::Syntax, Index, RuleEnd);
			LiteralBegin = RuleEnd;
			return RuleEnd;
		}
		const bool bBlank = FChar::IsWhitespace(Text[Index]);
		if (bBlank != bLiteralIsBlank)
		{
			FinishLiteral(Index);
			bLiteralIsBlank = bBlank;
		}
		return SkipWordOrCharacter(Index);
	}

	int32 SkipWordOrCharacter(int32 Index) const
	{
		bool bInWord = FSyntaxMatcher::ReadWordCharacter(Text, Index);
		while (bInWord && Index < Text.Len())
		{
			int32 Next = Index;
			bInWord = FSyntaxMatcher::ReadWordCharacter(Text, Next);
			Index = bInWord ? Next : Index;
		}
		return Index;
	}

	void FinishLiteral(int32 End)
	{
		if (End > LiteralBegin)
		{
			Add(FSyntaxTokenizer::ETokenType::Literal, LiteralBegin, End);
			LiteralBegin = End;
		}
	}

	void Add(FSyntaxTokenizer::ETokenType Type, int32 Begin, int32 End) { Result.Tokens.Add({Type, FTextRange(Begin, End)}); }

	const FSyntaxMatcher& Matcher;
	FStringView Text;
	FSyntaxTokenizer::FTokenizedLine& Result;
	int32 LiteralBegin;
	bool bLiteralIsBlank = false;
};
} // namespace

TSharedRef<FSyntaxTokenizer> FSyntaxTokenizer::Create(TArray<FRule> Rules)
{
	static TArray<TSharedRef<FSyntaxTokenizer>> Kept;
	const int32 Known =
		Kept.IndexOfByPredicate([&Rules](const TSharedRef<FSyntaxTokenizer>& Tokenizer) { return Tokenizer->HasRules(Rules); });
	const TSharedRef<FSyntaxTokenizer> Found = Known != INDEX_NONE ? Kept[Known] : MakeShareable(new FSyntaxTokenizer(MoveTemp(Rules)));
	if (Known != INDEX_NONE || Kept.Num() == MaxKeptTokenizers)
	{
		Kept.RemoveAt(Known != INDEX_NONE ? Known : 0);
	}
	Kept.Add(Found);
	return Found;
}

FSyntaxTokenizer::FSyntaxTokenizer(TArray<FRule> InRules)
	: Rules(MoveTemp(InRules))
	, Matcher(MakeUnique<FSyntaxMatcher>(Rules))
{
}

FSyntaxTokenizer::~FSyntaxTokenizer() = default;

bool FSyntaxTokenizer::HasRules(const TArray<FRule>& OtherRules) const
{
	return std::equal(Rules.begin(), Rules.end(), OtherRules.begin(), OtherRules.end(),
		[](const FRule& Rule, const FRule& Other) { return Rule.MatchText.Equals(Other.MatchText); });
}

void FSyntaxTokenizer::Process(TArray<FTokenizedLine>& OutTokenizedLines, const FString& Input) const
{
	OutTokenizedLines.Reserve(static_cast<int32>(std::count(Input.begin(), Input.end(), TEXT('\n'))) + 1);
	for (int32 Begin = 0; Begin != INDEX_NONE;)
	{
		FTokenizedLine& Line = OutTokenizedLines.AddDefaulted_GetRef();
		Begin = TextLines::FindLine(Input, Begin, Line.Range);
		FLineCutter(*Matcher, Input, Line).Cut();
	}
}
