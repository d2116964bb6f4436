// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/TextRange.h"

/** One run of markup. All ranges are into the text that the parser put out. */
struct FTextRunParseResults
{
	/** Empty for plain text. */
	FString Name;
	/** The run with its tags. */
	FTextRange OriginalRange;
	/** What stands between the tags. */
	FTextRange ContentRange;
	/** Attribute names with the ranges of their values, without the quotes. */
	TMap<FString, FTextRange> MetaData;

	explicit FTextRunParseResults(const FTextRange& Range)
		: OriginalRange(Range)
		, ContentRange(Range)
	{
	}
	FTextRunParseResults(FString InName, const FTextRange& InOriginalRange, const FTextRange& InContentRange)
		: Name(MoveTemp(InName))
		, OriginalRange(InOriginalRange)
		, ContentRange(InContentRange)
	{
	}
};

struct FTextLineParseResults
{
	FTextRange Range;
	TArray<FTextRunParseResults> Runs;
};

class IRichTextMarkupParser
{
public:
	virtual ~IRichTextMarkupParser() = default;

	/** Any input is valid. `Output` is `Input` with its character references resolved; the results refer to it. */
	virtual void Process(TArray<FTextLineParseResults>& Results, const FString& Input, FString& Output) = 0;
};
