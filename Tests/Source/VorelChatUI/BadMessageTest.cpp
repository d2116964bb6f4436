// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/SChatItem.h"
#include "Support/UserDriver.h"
#include "Widgets.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include <gtest/gtest.h>

namespace
{

constexpr int32 Many = 10'000;

FString Repeat(const TCHAR* Text, int32 Count)
{
	FString Result;
	Result.Reserve(Count * FStringView(Text).Len());
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Result += Text;
	}
	return Result;
}

// A message, and what of it must be copied, where that is not the message itself; white space does not count.
struct FMessage
{
	const char* Name;
	FString Markdown;
	TOptional<FString> Copied;
};

TArray<FMessage> MakeMessages()
{
	const TCHAR LoneSurrogates[] = {u'a', 0xD800, u'b', 0xDC00, u'c', 0};
	FString Rubbish;
	for (uint32 Index = 0, Random = 1; Index < Many; ++Index)
	{
		Random = Random * 1664525u + 1013904223u;
		Rubbish.AppendChar(static_cast<TCHAR>(Random >> 16));
	}
	const FString Block(TEXT("```\nint x;\n```\n"));
	return {
		{"a megabyte of prose", Repeat(TEXT("some words of prose. "), 50'000), {}},
		{"a megabyte of code", TEXT("```cpp\n") + Repeat(TEXT("int Value = 1; // one\n"), 50'000) + TEXT("```"), FString(TEXT("\u200B"))},
		{"a line of code", TEXT("```\n") + Repeat(TEXT("x = y + "), 12'500) + TEXT("\n```"), FString(TEXT("\u200B"))},
		{"a line of words", Repeat(TEXT("word "), 20'000), {}},
		{"a line without a break", Repeat(TEXT("a"), 10 * Many), {}},
		{"a line of Han", Repeat(TEXT("\u4e2d"), 10 * Many), {}},
		{"small blocks", Repeat(*Block, 2'000), Repeat(TEXT("\u200B"), 2'000)},
		{"nested quotes", Repeat(TEXT(">"), Many) + TEXT("end"), FString(TEXT("end"))},
		{"nested lists", Repeat(TEXT("- "), Many) + TEXT("end"), FString(TEXT("end"))},
		{"brackets", Repeat(TEXT("["), Many) + TEXT("end"), {}},
		{"lone surrogates", LoneSurrogates, FString(TEXT("a\uFFFDb\uFFFDc"))},
		{"control characters", FString(FStringView(u"a\0b\x01\x1b[31m\x7f\u0085c\u2028d", 14)),
			FString(TEXT("a\uFFFDb\uFFFD\uFFFD[31m\uFFFDcd"))},
		{"from the right", Repeat(TEXT("\u0645\u0631\u062d\u0628\u0627 abc 123 \u202E\u2066"), 1'000), {}},
		{"combining marks", TEXT("e") + Repeat(TEXT("\u0301"), Many) + TEXT("x"), {}},
		{"emoji", Repeat(TEXT("\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466"), 1'000), {}},
		{"unfinished emoji", Repeat(TEXT("\u200D\uFE0F\U0001F1E9\U0001F3FB"), 1'000), {}},
		{"a table too wide for one",
			TEXT("|") + Repeat(TEXT("a|"), 500) + TEXT("\n|") + Repeat(TEXT("-|"), 500) + TEXT("\n|") + Repeat(TEXT("b|"), 500), {}},
		{"binary rubbish", Rubbish + TEXT("\n\nkept\n\n") + Rubbish, FString(TEXT("kept"))},
	};
}

FString WithoutSpace(const FString& Text)
{
	FString Result;
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		if (!FChar::IsWhitespace(Text[Index]))
		{
			Result.AppendChar(Text[Index]);
		}
	}
	return Result;
}

} // namespace

TEST(BadMessage, IsShownAndCopiedWhole)
{
	for (const FMessage& Message : MakeMessages())
	{
		const TSharedRef<SChatItem> Item = SNew(SChatItem).Role(EChatRole::Assistant).Message(TEXT("before"));
		FUserDriver User(SNew(SScrollBox) + SScrollBox::Slot()[Item], FVector2D(700.0, 400.0));
		Item->UpdateMessageContent(Message.Markdown);
		User.Frame();
		const TSharedRef<SWidget> Body = FindOne(FindOne(Item, TEXT("SMarkdownTextbox")), TEXT("SMultiLineEditableText"));
		User.ClickAt(FVector2D(16.0, Body->GetCachedGeometry().GetAbsolutePosition().Y + 1.0));
		User.Press(TEXT("Ctrl+A"));
		User.Press(TEXT("Ctrl+C"));
		EXPECT_TRUE(WithoutSpace(User.GetClipboard()).Contains(WithoutSpace(Message.Copied.Get(Message.Markdown)))) << Message.Name;
		// At any width, and with more to come.
		User.Resize(FVector2D(60.0, 400.0));
		Item->AddMessageContent(TEXT("\n\nafter"));
		User.Frame();
		EXPECT_TRUE(Body->GetShownText().EndsWith(TEXT("after"))) << Message.Name;
	}
}
