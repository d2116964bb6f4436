// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatItem.h"
#include "Framework/Text/SlateTextLayout.h"
#include "OffscreenChat.h"
#include "ProcessorTime.h"
#include "SampleText.h"
#include "Styling/SlateTypes.h"
#include "Support/CodeSamples.h"
#include "Syntax/CodeBlockMarshaller.h"
#include "Syntax/CppSyntaxRules.h"
#include "Widgets/SNullWidget.h"

#include <benchmark/benchmark.h>

namespace
{
const TArray<FCodeSample>& GetSamples()
{
	static const TArray<FCodeSample> Samples = ReadCodeSamples(VOREL_CODE_FOLDERS ":" VOREL_LONG_CODE_FOLDERS);
	return Samples;
}

void Tokenize(const FString& Code)
{
	TArray<FSyntaxTokenizer::FTokenizedLine> Lines;
	CreateCppTokenizer()->Process(Lines, Code);
	benchmark::DoNotOptimize(Lines);
}

// All that a code block costs but its painting: tokens, runs, shaping, wrapping.
void LayOut(const FString& Code)
{
	const TSharedRef<FSlateTextLayout> Layout = FSlateTextLayout::Create(*SNullWidget::NullWidget, FTextBlockStyle::GetDefault());
	Layout->SetTextShapingMethod(ETextShapingMethod::KerningOnly);
	FCodeBlockMarshaller::Create()->SetText(Code, *Layout);
	Layout->UpdateIfNeeded();
}

double MedianOf(TArray<double> Values)
{
	Values.Sort();
	return Values.IsEmpty() ? 0.0 : Values[Values.Num() / 2];
}

// In nanoseconds a character, of the files whose length is within the bounds.
double MeasureFiles(void (*Work)(const FString&), int32 MinLength, int32 MaxLength)
{
	constexpr int32 Repeats = 5;
	TArray<double> Costs;
	for (const FCodeSample& Sample : GetSamples())
	{
		if (Sample.Text.Len() < MinLength || Sample.Text.Len() > MaxLength)
		{
			continue;
		}
		TArray<double> Times;
		for (int32 Repeat = 0; Repeat < Repeats; ++Repeat)
		{
			Times.Add(MeasureProcessorMilliseconds([&] { Work(Sample.Text); }));
		}
		Costs.Add(MedianOf(Times) * 1e6 / Sample.Text.Len());
	}
	return MedianOf(Costs);
}

// Long files may cost no more a character than short ones do.
void ReadFiles(benchmark::State& State, void (*Work)(const FString&))
{
	double Short = 0.0;
	double Long = 0.0;
	for (auto _ : State)
	{
		Short = MeasureFiles(Work, 4 * 1024, 16 * 1024);
		Long = MeasureFiles(Work, 64 * 1024, MAX_int32);
	}
	State.counters["short_ns_per_char"] = Short;
	State.counters["long_ns_per_char"] = Long;
	State.counters["long_to_short"] = Long / Short;
}
BENCHMARK_CAPTURE(ReadFiles, Tokenize, Tokenize)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReadFiles, LayOut, LayOut)->Iterations(1)->Unit(benchmark::kMillisecond);

// A stored answer that is one block of code, from its Markdown to the picture.
void ShowBlock(benchmark::State& State)
{
	const FString Markdown = MakeSampleCodeBlock(static_cast<int32>(State.range(0)));
	FFrameCost Cost;
	for (auto _ : State)
	{
		FOffscreenChat Chat;
		Cost = Chat.RunFrame([&] { Chat.AddMessage(EChatRole::Assistant, Markdown); });
	}
	State.counters["content_ms"] = Cost.Content;
	State.counters["layout_ms"] = Cost.Layout;
	State.counters["paint_ms"] = Cost.Paint;
}
BENCHMARK(ShowBlock)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Iterations(3)->Unit(benchmark::kMillisecond);
} // namespace
