// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.
#include "Framework/Text/RichTextLayoutMarshaller.h"

#include "Framework/Text/ITextDecorator.h"
#include "Framework/Text/RichTextMarkupProcessing.h"
#include "Framework/Text/SlateTextRun.h"
#include "Framework/Text/TextLayout.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "TextStylePool.h"

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

void FRichTextLayoutMarshaller::SetText(const FString& SourceString, FTextLayout& TargetTextLayout)
{
	FString Text;
	TArray<FTextLineParseResults> Results;
	Parser->Process(Results, SourceString, Text);

	TArray<FTextLayout::FNewLineData> NewLines;
	NewLines.Reserve(Results.Num());
	for (const FTextLineParseResults& Line : Results)
	{
		const TSharedRef<FString> ModelText = MakeShared<FString>();
		TArray<TSharedRef<IRun>> Runs;
		Runs.Reserve(Line.Runs.Num());
		for (const FTextRunParseResults& Run : Line.Runs)
		{
			Runs.Add(CreateRun(Run, Text, ModelText, TargetTextLayout));
		}
		NewLines.Add({ModelText, MoveTemp(Runs)});
	}
	TargetTextLayout.AddLines(NewLines);
}

void FRichTextLayoutMarshaller::GetText(FString& TargetString, const FTextLayout& SourceTextLayout)
{
	SourceTextLayout.GetAsText(TargetString);
}

TSharedRef<IRun> FRichTextLayoutMarshaller::CreateRun(
	const FTextRunParseResults& Result, const FString& Text, const TSharedRef<FString>& ModelText, FTextLayout& Layout)
{
	for (const TSharedRef<ITextDecorator>& Decorator : Decorators)
	{
		if (Decorator->Supports(Result, Text))
		{
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
		Style = TextStylePool::Share(DecoratorStyleSet->GetWidgetStyle<FTextBlockStyle>(StyleName));
	}
	Styles.Add(Name, Style);
	return Style;
}
