// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownParser.h"
#include "SampleText.h"

#include <benchmark/benchmark.h>

namespace
{
UMarkdownParser& GetParser()
{
	static UMarkdownParser* Parser = []
	{
		UMarkdownParser* Made = NewObject<UMarkdownParser>();
		Made->AddToRoot();
		return Made;
	}();
	return *Parser;
}

FString Render(const FString& Markdown)
{
	GetParser().SetContent(Markdown);
	GetParser().Parse();
	return GetParser().RenderToHTML();
}

// One text of the given length to markup.
void RenderMarkdown(benchmark::State& State)
{
	const FString Markdown = MakeSampleMarkdown(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Render(Markdown));
	}
	State.SetBytesProcessed(State.iterations() * Markdown.Len());
}
BENCHMARK(RenderMarkdown)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

// An answer that grows by pieces of 20 characters, rendered whole after each, as the chat does.
void RenderGrowingMarkdown(benchmark::State& State)
{
	constexpr int32 PieceLength = 20;
	const FString Markdown = MakeSampleMarkdown(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		for (int32 Length = PieceLength; Length < Markdown.Len(); Length += PieceLength)
		{
			benchmark::DoNotOptimize(Render(Markdown.Left(Length)));
		}
	}
}
BENCHMARK(RenderGrowingMarkdown)->Arg(10'000)->Arg(40'000)->Unit(benchmark::kMillisecond);
} // namespace
