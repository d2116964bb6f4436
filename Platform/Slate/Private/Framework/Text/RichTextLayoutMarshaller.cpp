// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/RichTextLayoutMarshaller.h"

#include "Framework/Text/ITextDecorator.h"
#include "Framework/Text/RichTextMarkupProcessing.h"
#include "Framework/Text/SlateTextRun.h"
#include "RunLooks.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "TextLines.h"
#include "Widgets/SWidget.h"

#include <algorithm>

namespace
{
/** Of one source the same decorators make equal widgets. */
void AssumeWidgetSizes(const TArray<TSharedRef<IRun>>& Runs, const TArray<TSharedRef<IRun>>& Former)
{
	for (int32 Index = 0; Index < FMath::Min(Runs.Num(), Former.Num()); ++Index)
	{
		const TSharedPtr<SWidget> Widget = StaticCastSharedRef<ISlateRun>(Runs[Index])->GetWidget();
		const TSharedPtr<SWidget> FormerWidget = StaticCastSharedRef<ISlateRun>(Former[Index])->GetWidget();
		if (Widget && FormerWidget && !FormerWidget->GetDesiredSize().IsZero())
		{
			Widget->AssumeDesiredSize(FormerWidget->GetDesiredSize());
		}
	}
}
} // namespace

TSharedRef<FRichTextLayoutMarshaller> FRichTextLayoutMarshaller::Create(
	TArray<TSharedRef<ITextDecorator>> Decorators, const ISlateStyle* DecoratorStyleSet)
{
	return MakeShareable(new FRichTextLayoutMarshaller(MoveTemp(Decorators), DecoratorStyleSet));
}

FRichTextLayoutMarshaller::FRichTextLayoutMarshaller(
	TArray<TSharedRef<ITextDecorator>> InDecorators, const ISlateStyle* InDecoratorStyleSet)
	: Decorators(MoveTemp(InDecorators))
	, DecoratorStyleSet(InDecoratorStyleSet)
	, Parser(FDefaultRichTextMarkupParser::Create())
{
}

void FRichTextLayoutMarshaller::MakeDirty()
{
	FBaseTextLayoutMarshaller::MakeDirty();
	LastLayout.Reset();
}

void FRichTextLayoutMarshaller::SetText(const FString& SourceString, FTextLayout& TargetTextLayout)
{
	TargetTextLayout.SetKeepsColumns(true);
	const int32 UnchangedLength = FindUnchangedLength(SourceString, TargetTextLayout);
	const int32 NumKnown = UnchangedLength > 0 ? Lines.Num() : 0;
	int32 NumLines = 0;
	FTextRange Line;
	for (int32 Begin = 0; Begin != INDEX_NONE; ++NumLines)
	{
		Begin = TextLines::FindLine(SourceString, Begin, Line);
		const bool bUnchanged = NumLines < NumKnown && Begin != INDEX_NONE && Begin <= UnchangedLength;
		const FStringView Source = FStringView(SourceString).Mid(Line.BeginIndex, Line.Len());
		if (!bUnchanged)
		{
			ReadLine(Source, NumLines, TargetTextLayout);
		}
		else if (LineIsDecorated[NumLines])
		{
			const TArray<TSharedRef<IRun>> Former = Lines[NumLines].Runs;
			ReadLine(Source, NumLines, TargetTextLayout);
			AssumeWidgetSizes(Lines[NumLines].Runs, Former);
		}
	}
	Lines.RemoveAt(NumLines, Lines.Num() - NumLines);
	LineIsDecorated.SetNum(NumLines);
	LastSource = SourceString;
	LastLayout = TargetTextLayout.AsShared();
	TargetTextLayout.AddLines(Lines);
}

int32 FRichTextLayoutMarshaller::FindUnchangedLength(const FString& SourceString, const FTextLayout& Layout) const
{
	if (!LastLayout.HasSameObject(&Layout))
	{
		return 0;
	}
	const auto Difference = std::mismatch(SourceString.begin(), SourceString.end(), LastSource.begin(), LastSource.end());
	return static_cast<int32>(Difference.first - SourceString.begin());
}

void FRichTextLayoutMarshaller::ReadLine(FStringView Source, int32 LineIndex, FTextLayout& Layout)
{
	FString Text;
	TArray<FTextLineParseResults> Results;
	Parser->Process(Results, FString(Source), Text);
	const TSharedRef<FString> ModelText = MakeShared<FString>();
	TArray<TSharedRef<IRun>> Runs;
	bool bDecorated = false;
	for (const FTextRunParseResults& Run : Results[0].Runs)
	{
		Runs.Add(CreateRun(Run, Text, ModelText, Layout, bDecorated));
	}
	const FTextLayout::FNewLineData Line{ModelText, MoveTemp(Runs)};
	if (LineIndex < Lines.Num())
	{
		Lines[LineIndex] = Line;
		LineIsDecorated[LineIndex] = bDecorated;
		return;
	}
	Lines.Add(Line);
	LineIsDecorated.Add(bDecorated);
}

void FRichTextLayoutMarshaller::GetText(FString& TargetString, const FTextLayout& SourceTextLayout)
{
	SourceTextLayout.GetAsText(TargetString);
}

TSharedRef<IRun> FRichTextLayoutMarshaller::CreateRun(
	const FTextRunParseResults& Result, const FString& Text, const TSharedRef<FString>& ModelText, FTextLayout& Layout, bool& bOutDecorated)
{
	for (const TSharedRef<ITextDecorator>& Decorator : Decorators)
	{
		if (Decorator->Supports(Result, Text))
		{
			bOutDecorated = true;
			return Decorator->Create(Layout.AsShared(), Result, Text, ModelText, DecoratorStyleSet);
		}
	}
	return CreateTextRun(Result, Text, ModelText, Layout);
}

TSharedRef<IRun> FRichTextLayoutMarshaller::CreateTextRun(
	const FTextRunParseResults& Result, const FString& Text, const TSharedRef<FString>& ModelText, const FTextLayout& Layout)
{
	const int32 Begin = ModelText->Len();
	ModelText->Append(FStringView(Text).Mid(Result.ContentRange.BeginIndex, Result.ContentRange.Len()));
	const FTextRange ModelRange(Begin, ModelText->Len());
	const TSharedPtr<const FTextBlockStyle> Style = Result.Name.IsEmpty() ? nullptr : FindStyle(Result.Name);
	if (!Style)
	{
		return Layout.CreateDefaultTextRun(ModelText, ModelRange);
	}
	FRunInfo RunInfo(Result.Name);
	for (const auto& Entry : Result.MetaData)
	{
		RunInfo.MetaData.Add(Entry.Key, Text.Mid(Entry.Value.BeginIndex, Entry.Value.Len()));
	}
	return FSlateTextRun::Create(RunInfo, ModelText, Style.ToSharedRef(), ModelRange);
}

TSharedPtr<const FTextBlockStyle> FRichTextLayoutMarshaller::FindStyle(const FString& Name)
{
	if (const TSharedPtr<const FTextBlockStyle>* Known = Styles.Find(Name))
	{
		return *Known;
	}
	TSharedPtr<const FTextBlockStyle> Style;
	const FName StyleName(*Name);
	if (DecoratorStyleSet && DecoratorStyleSet->HasWidgetStyle<FTextBlockStyle>(StyleName))
	{
		Style = RunLooks::Share(DecoratorStyleSet->GetWidgetStyle<FTextBlockStyle>(StyleName));
	}
	Styles.Add(Name, Style);
	return Style;
}
