// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "BlockProbe.h"

#include "MarkdownReader.h"

namespace
{
class FBlockProbe : public IMarkdownHandler
{
public:
	FBlockProbe(std::string_view InSource, TArray<FProbedStretch>& InStretches)
		: Source(InSource)
		, Stretches(InStretches)
	{
	}

	void EnterBlock(MD_BLOCKTYPE Type, const void*) override
	{
		Block = Type;
		++BlockNumber;
	}

	void LeaveBlock(MD_BLOCKTYPE) override {}
	void EnterSpan(MD_SPANTYPE) override {}
	void LeaveSpan(MD_SPANTYPE, const void*) override {}

	void Text(MD_TEXTTYPE, std::string_view Text) override
	{
		if (Text.data() < Source.data() || Text.data() >= Source.data() + Source.size())
		{
			return;
		}
		const auto Begin = static_cast<size_t>(Text.data() - Source.data());
		while (Next < Stretches.Num() && Stretches[Next].End <= Begin)
		{
			++Next;
		}
		for (int32 Index = Next; Index < Stretches.Num() && Stretches[Index].Begin < Begin + Text.size(); ++Index)
		{
			Stretches[Index].Block = Block;
			Stretches[Index].BlockNumber = BlockNumber;
		}
	}

private:
	std::string_view Source;
	TArray<FProbedStretch>& Stretches;
	int32 Next = 0;
	MD_BLOCKTYPE Block = MD_BLOCK_DOC;
	int32 BlockNumber = 0;
};
} // namespace

void ProbeBlocks(std::string_view Source, TArray<FProbedStretch>& Stretches)
{
	FBlockProbe Probe(Source, Stretches);
	ReadMarkdown(Source, Probe);
}
