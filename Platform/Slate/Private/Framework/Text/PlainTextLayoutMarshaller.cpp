// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/PlainTextLayoutMarshaller.h"

#include "Containers/StringView.h"
#include "Framework/Text/TextLayout.h"
#include "TextLines.h"

TSharedRef<FPlainTextLayoutMarshaller> FPlainTextLayoutMarshaller::Create()
{
	return MakeShared<FPlainTextLayoutMarshaller>();
}

void FPlainTextLayoutMarshaller::SetText(const FString& SourceString, FTextLayout& TargetTextLayout)
{
	TargetTextLayout.AddLines(TextLines::MakePlainLines(SourceString));
}

void FPlainTextLayoutMarshaller::GetText(FString& TargetString, const FTextLayout& SourceTextLayout)
{
	SourceTextLayout.GetAsText(TargetString);
}
