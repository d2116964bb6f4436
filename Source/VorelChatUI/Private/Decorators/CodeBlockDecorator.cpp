// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Decorators/CodeBlockDecorator.h"

#include "Chat/ChatItemWidgets/SCodeWidget.h"
#include "Framework/Text/SlateWidgetRun.h"

namespace
{

constexpr TCHAR ZeroWidthSpace = 0x200B;

// The type name that tools have always shown for a code block.
using SSCodeWidget = SCodeWidget;

FRunInfo MakeRunInfo(const FTextRunParseResults& RunParseResult, const FString& MarkupText)
{
	FRunInfo RunInfo(RunParseResult.Name);
	for (const TPair<FString, FTextRange>& Pair : RunParseResult.MetaData)
	{
		RunInfo.MetaData.Add(Pair.Key, MarkupText.Mid(Pair.Value.BeginIndex, Pair.Value.Len()));
	}
	return RunInfo;
}

FTextRange AppendPlaceholder(FString& ModelText)
{
	FTextRange ModelRange;
	ModelRange.BeginIndex = ModelText.Len();
	ModelText.AppendChar(ZeroWidthSpace);
	ModelRange.EndIndex = ModelText.Len();
	return ModelRange;
}

FString ReadCode(const FTextRunParseResults& RunParseResult, const FString& MarkupText)
{
	const FTextRange& Range = RunParseResult.ContentRange;
	FString Code = MarkupText.Mid(Range.BeginIndex, Range.Len());
	Code.ReplaceInline(TEXT("__NL__"), TEXT("\n"), ESearchCase::IgnoreCase);
	return Code;
}

int16 GetBaseline()
{
	return 0;
}

} // namespace

TSharedRef<ITextDecorator> FCodeBlockDecorator::Create()
{
	return MakeShared<FCodeBlockDecorator>();
}

bool FCodeBlockDecorator::Supports(const FTextRunParseResults& RunParseResult, const FString& Text) const
{
	return RunParseResult.Name.Equals(TEXT("code"), ESearchCase::IgnoreCase);
}

TSharedRef<ISlateRun> FCodeBlockDecorator::Create(const TSharedRef<FTextLayout>& TextLayout, const FTextRunParseResults& RunParseResult,
	const FString& MarkupText, const TSharedRef<FString>& ModelText, const ISlateStyle* Style)
{
	const FRunInfo RunInfo = MakeRunInfo(RunParseResult, MarkupText);
	const FTextRange ModelRange = AppendPlaceholder(*ModelText);
	const TSharedRef<SWidget> CodeWidget = SNew(SSCodeWidget).Text(FText::FromString(ReadCode(RunParseResult, MarkupText)));
	const FSlateWidgetRun::FWidgetRunInfo WidgetRunInfo(CodeWidget, TAttribute<int16>::CreateStatic(&GetBaseline));
	return FSlateWidgetRun::Create(TextLayout, RunInfo, ModelText, WidgetRunInfo, ModelRange);
}
