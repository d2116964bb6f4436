// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/SyntaxTokenizer.h"

/**
 * Finds which rule matches at a place. A table of states, one for each beginning of a rule, and in it a column for each character that any
 * rule holds: a step is one look-up, however many rules there are.
 */
class FSyntaxMatcher
{
public:
	/** A rule without text never matches. */
	explicit FSyntaxMatcher(const TArray<FSyntaxTokenizer::FRule>& Rules);

	/**
	 * The end of the longest rule that matches at `Begin`, or INDEX_NONE. A rule that ends with a word character matches only at the end
	 * of a word; that no word goes on at `Begin` is the caller's to see to.
	 */
	int32 Match(FStringView Text, int32 Begin) const;

	/** Whether the character at `Index` belongs to a word; moves on behind it. */
	static bool ReadWordCharacter(FStringView Text, int32& Index);

private:
	enum class EStateKind : uint8
	{
		Beginning,
		Rule,
		WordRule
	};

	void AddColumns(FStringView Rule);
	void AddStates(FStringView Rule);
	int32 FindColumn(TCHAR Character) const;
	bool IsMatch(EStateKind Kind, FStringView Text, int32 End) const;

	static constexpr int32 NumAscii = 128;
	/** Column 0 is that of all characters that no rule holds. */
	int32 AsciiColumns[NumAscii] = {};
	TMap<TCHAR, int32> OtherColumns;
	int32 NumColumns = 1;

	/** The state after a character, by state and column. No way leads back to the first state, so zero is the end of all rules. */
	TArray<int32> NextStates;
	TArray<EStateKind> StateKinds;
};
