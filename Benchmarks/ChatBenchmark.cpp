// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatItemWidgets/SMarkdownTextbox.h"
#include "Chat/SChatItem.h"
#include "MarkdownParser.h"
#include "OffscreenChat.h"
#include "SampleText.h"
#include "Widgets/Layout/SScrollBox.h"

#include <benchmark/benchmark.h>

namespace
{
void ReportFrames(benchmark::State& State, TArray<FFrameCost>& Frames)
{
	Frames.Sort([](const FFrameCost& Lhs, const FFrameCost& Rhs) { return Lhs.GetTotal() < Rhs.GetTotal(); });
	State.counters["p50_ms"] = Frames[Frames.Num() / 2].GetTotal();
	State.counters["p95_ms"] = Frames[Frames.Num() * 95 / 100].GetTotal();
	State.counters["max_ms"] = Frames.Last().GetTotal();
	State.counters["max_content"] = Frames.Last().Content;
	State.counters["max_layout"] = Frames.Last().Layout;
	State.counters["max_paint"] = Frames.Last().Paint;
}

// From markup to the picture, in a new view each time: the runs, the shaping of what the cache does not hold, the wrapping, the paint.
void LayOutMarkup(benchmark::State& State)
{
	UMarkdownParser* Parser = NewObject<UMarkdownParser>();
	Parser->SetContent(MakeSampleMarkdown(static_cast<int32>(State.range(0))));
	Parser->Parse();
	const FString Markup = Parser->RenderToHTML();
	for (auto _ : State)
	{
		FOffscreenChat Chat;
		Chat.RunFrame([&] { Chat.AddTextbox()->SetMarkdownText(Markup); });
	}
	State.SetBytesProcessed(State.iterations() * Markup.Len());
}
BENCHMARK(LayOutMarkup)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void StreamText(FOffscreenChat& Chat, const FString& Markdown, int32 PieceLength, TArray<FFrameCost>& OutFrames)
{
	const TSharedRef<SChatItem> Answer = Chat.AddMessage(EChatRole::Assistant, FString());
	for (int32 Position = 0; Position < Markdown.Len(); Position += PieceLength)
	{
		OutFrames.Add(Chat.RunFrame(
			[&]
			{
				Answer->AddMessageContent(Markdown.Mid(Position, PieceLength));
				Chat.GetScrollBox().ScrollToEnd();
			}));
	}
}

// From a message to its picture, at once.
void ShowMessage(benchmark::State& State, const TCHAR* Begin, const TCHAR* Piece, const TCHAR* End)
{
	FString Markdown(Begin);
	for (int32 Index = 0; Index < State.range(0); ++Index)
	{
		Markdown += Piece;
	}
	Markdown += End;
	for (auto _ : State)
	{
		FOffscreenChat Chat;
		Chat.RunFrame([&] { Chat.AddMessage(EChatRole::Assistant, Markdown); });
	}
}
BENCHMARK_CAPTURE(ShowMessage, LongWord, TEXT(""), TEXT("a"), TEXT(""))->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowMessage, LongLineOfCode, TEXT("```\n"), TEXT("a"), TEXT(""))->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowMessage, Han, TEXT(""), TEXT("\u4e2d"), TEXT(""))->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowMessage, CombiningMarks, TEXT("e"), TEXT("\u0301"), TEXT(""))->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowMessage, NestedQuotes, TEXT(""), TEXT(">"), TEXT("end"))->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowMessage, SmallCodeBlocks, TEXT(""), TEXT("```\nint x;\n```\n"), TEXT(""))->Arg(2'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowMessage, Table, TEXT("|a|b|\n|-|-|\n"), TEXT("|some words|more\n"), TEXT(""))
	->Arg(10'000)
	->Unit(benchmark::kMillisecond);

// An answer that arrives in pieces, one a frame. A frame counts from the arrival to the picture.
void StreamAnswer(benchmark::State& State, FString (*MakeText)(int32 Length))
{
	const FString Markdown = MakeText(static_cast<int32>(State.range(0)));
	const auto PieceLength = static_cast<int32>(State.range(1));
	FOffscreenChat Chat;
	TArray<FFrameCost> Frames;
	for (auto _ : State)
	{
		StreamText(Chat, Markdown, PieceLength, Frames);
	}
	ReportFrames(State, Frames);
}

// The length of the whole, and of a piece.
void SetStreamArguments(benchmark::internal::Benchmark* Benchmark)
{
	Benchmark->Args({20'000, 20})->Args({1'000'000, 10'000})->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(StreamAnswer, Answer, MakeSampleMarkdown)->Apply(SetStreamArguments);
BENCHMARK_CAPTURE(StreamAnswer, OneParagraph, MakeSampleParagraph)->Apply(SetStreamArguments);
BENCHMARK_CAPTURE(StreamAnswer, OneCodeBlock, MakeSampleCodeBlock)->Apply(SetStreamArguments);
BENCHMARK_CAPTURE(StreamAnswer, SmallCodeBlocks, MakeSmallCodeBlocks)->Args({20'000, 400})->Args({40'000, 400})->Args({80'000, 400})->Iterations(1)->Unit(benchmark::kMillisecond);

// A stored conversation: what it costs until its end is seen, and the frames after that, while the user jumps and rolls through it and
// while another answer arrives. The arguments are the number of its messages and their length.
void OpenConversation(benchmark::State& State, FString (*MakeText)(int32 Length))
{
	const auto NumMessages = static_cast<int32>(State.range(0));
	const auto Length = static_cast<int32>(State.range(1));
	const FString Text = MakeText(NumMessages * Length);
	TArray<FFrameCost> Frames;
	double OpenMilliseconds = 0.0;
	for (auto _ : State)
	{
		FOffscreenChat Chat;
		const auto AddMessages = [&]
		{
			for (int32 Index = 0; Index < NumMessages; ++Index)
			{
				Chat.AddMessage(Index % 2 == 0 ? EChatRole::User : EChatRole::Assistant, Text.Mid(Index * Length, Length));
			}
		};
		OpenMilliseconds = Chat.RunFrame(AddMessages).GetTotal();
		SScrollBox& ScrollBox = Chat.GetScrollBox();
		const float End = ScrollBox.GetScrollOffsetOfEnd();
		constexpr int32 NumPlaces = 50;
		constexpr int32 NumSteps = 10;
		constexpr float StepLength = 90.0f;
		for (int32 Step = 0; Step < NumPlaces * NumSteps; ++Step)
		{
			const int32 Place = Step / NumSteps * 37 % NumPlaces;
			const float Offset = End * static_cast<float>(Place) / NumPlaces + StepLength * static_cast<float>(Step % NumSteps);
			Frames.Add(Chat.RunFrame([&] { ScrollBox.SetScrollOffset(Offset); }));
		}
		StreamText(Chat, MakeSampleMarkdown(10'000), 20, Frames);
	}
	State.counters["open_ms"] = OpenMilliseconds;
	ReportFrames(State, Frames);
}
BENCHMARK_CAPTURE(OpenConversation, Text, MakeSampleParagraph)->Args({10'000, 300})->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenConversation, Answers, MakeSampleMarkdown)->Args({10'000, 300})->Iterations(1)->Unit(benchmark::kMillisecond);
} // namespace
