// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Framework/Text/BaseTextLayoutMarshaller.h"
#include "Framework/Text/IRichTextMarkupParser.h"
#include "Framework/Text/TextLayout.h"
#include "Templates/SharedPointer.h"

class ISlateStyle;
class ITextDecorator;
struct FTextBlockStyle;

/**
 * Reads markup into runs. The first decorator that supports a run makes it; any other run takes the text style of its name from the
 * style set, and the layout's default style where the set has none.
 */
class FRichTextLayoutMarshaller : public FBaseTextLayoutMarshaller
{
public:
	/** `DecoratorStyleSet` must outlive the marshaller; it may be null. */
	static TSharedRef<FRichTextLayoutMarshaller> Create(
		TArray<TSharedRef<ITextDecorator>> Decorators, const ISlateStyle* DecoratorStyleSet);

	virtual void SetText(const FString& SourceString, FTextLayout& TargetTextLayout) override;

	/** The model text; the markup is the source's owner's. */
	virtual void GetText(FString& TargetString, const FTextLayout& SourceTextLayout) override;

	/** The next text is read as if it were the first. */
	virtual void MakeDirty() override;

private:
	FRichTextLayoutMarshaller(TArray<TSharedRef<ITextDecorator>> InDecorators, const ISlateStyle* InDecoratorStyleSet);

	/** How many of the source's first UTF-16 units are as they were when this layout was filled last. */
	int32 FindUnchangedLength(const FString& SourceString, const FTextLayout& Layout) const;
	void ReadLine(FStringView Source, int32 LineIndex, FTextLayout& Layout);
	TSharedRef<IRun> CreateRun(const FTextRunParseResults& Result, const FString& Text, const TSharedRef<FString>& ModelText,
		FTextLayout& Layout, bool& bOutDecorated);
	TSharedRef<IRun> CreateTextRun(
		const FTextRunParseResults& Result, const FString& Text, const TSharedRef<FString>& ModelText, const FTextLayout& Layout);
	TSharedPtr<const FTextBlockStyle> FindStyle(const FString& Name);

	TArray<TSharedRef<ITextDecorator>> Decorators;
	const ISlateStyle* DecoratorStyleSet;
	TSharedRef<IRichTextMarkupParser> Parser;
	/** Styles that this view's runs share, by run name; null for names that the set does not have. */
	TMap<FString, TSharedPtr<const FTextBlockStyle>> Styles;

	/** The last source, and the lines that were made of it. A line without decorated runs is used again while its source is the same. */
	FString LastSource;
	TArray<FTextLayout::FNewLineData> Lines;
	TArray<uint8> LineIsDecorated;
	TWeakPtr<const FTextLayout> LastLayout;
};
