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

// Texts that make parsers slow. Four times the text must take about four times as long.
struct FHostileText
{
	const char* Name;
	// Stands once before the pieces.
	FString Head;
	FString Piece;
};

FString Repeat(const TCHAR* Piece, int32 Count)
{
	FString Text;
	for (; Count > 0; --Count)
	{
		Text += Piece;
	}
	return Text;
}

const TArray<FHostileText>& GetHostileTexts()
{
	static const TArray<FHostileText> Texts = {
		{"quotes", FString(), TEXT("> ")},
		{"lists", FString(), TEXT("- ")},
		{"lines below a deep list", Repeat(TEXT("- "), 10'000), TEXT("\n")},
		{"lazy lines of a deep quote", Repeat(TEXT(">"), 10'000), TEXT("a\n")},
		{"brackets", FString(), TEXT("[")},
		{"brackets in lines", FString(), TEXT("[a]\n")},
		{"definitions", FString(), TEXT("[a]: b\n")},
		{"references", Repeat(TEXT("[a]: b\n"), 10'000) + TEXT("\n"), TEXT("[a]")},
		{"emphasis", FString(), TEXT("*a **b ")},
		{"struck", Repeat(TEXT("~~a "), 10'000), TEXT("b~~ ")},
		{"bare addresses", FString(), TEXT("www.a.b ")},
		{"addresses without a blank", FString(), TEXT("(http://a.b/")},
		{"HTML", FString(), TEXT("<a b=\"")},
		{"comments", FString(), TEXT("<!-- ")},
		{"backticks", FString(), TEXT("`a``")},
		{"rows of a wide table", Repeat(TEXT("|a"), 32) + TEXT("\n") + Repeat(TEXT("|---"), 32) + TEXT("\n"), TEXT("|\n")},
		{"tables below text", FString(), TEXT("a\n|x|\n|-|\n")},
		{"small blocks of code", FString(), TEXT("```\na\n```\n")},
		{"one block of code", TEXT("```\n"), TEXT("\tint32 a; // </> &\n")},
		{"one line", FString(), TEXT("x")},
	};
	return Texts;
}

void RenderHostileMarkdown(benchmark::State& State)
{
	const FHostileText& Text = GetHostileTexts()[static_cast<int32>(State.range(0))];
	const auto Length = static_cast<int32>(State.range(1));
	const FString Markdown = Text.Head + Repeat(*Text.Piece, FMath::Max(Length - Text.Head.Len(), 0) / Text.Piece.Len());
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Render(Markdown));
	}
	State.SetLabel(Text.Name);
}
BENCHMARK(RenderHostileMarkdown)
	->ArgsProduct({benchmark::CreateDenseRange(0, GetHostileTexts().Num() - 1, 1), {250'000, 1'000'000}})
	->Unit(benchmark::kMillisecond);
} // namespace
