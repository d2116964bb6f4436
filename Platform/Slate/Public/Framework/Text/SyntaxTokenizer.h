// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextRange.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

class FSyntaxMatcher;

/** Cuts text into lines, and these into what rules match and what they do not. */
class FSyntaxTokenizer
{
public:
	enum class ETokenType : uint8
	{
		/** Exactly the text of a rule. */
		Syntax,
		/** Anything else: white space alone, or none of it. */
		Literal
	};

	struct FToken
	{
		ETokenType Type = ETokenType::Literal;
		FTextRange Range;
	};

	/** The tokens follow each other over the whole of `Range`; an empty line has one that is empty. */
	struct FTokenizedLine
	{
		FTextRange Range;
		TArray<FToken> Tokens;
	};

	struct FRule
	{
		explicit FRule(FString InMatchText)
			: MatchText(MoveTemp(InMatchText))
		{
		}

		FString MatchText;
	};

	/**
	 * Of the rules that match at a place the longest wins, wherever it is in the list. The end of a rule that is a letter, a digit or an
	 * underscore has to be the end of that word: "for" is not found in "format", "#if" is found in "a#if" and not in "#iffy".
	 *
	 * A tokenizer has no state, so equal lists share one; the last few are kept ready.
	 */
	static TSharedRef<FSyntaxTokenizer> Create(TArray<FRule> Rules);
	~FSyntaxTokenizer();

	/** Any text is valid. Lines end at LF or CR LF, which belong to no line; there is at least one line. */
	void Process(TArray<FTokenizedLine>& OutTokenizedLines, const FString& Input) const;

private:
	explicit FSyntaxTokenizer(TArray<FRule> InRules);

	bool HasRules(const TArray<FRule>& OtherRules) const;

	TArray<FRule> Rules;
	TUniquePtr<const FSyntaxMatcher> Matcher;
};
