// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/RichTextMarkupProcessing.h"

#include "Support/Printers.h"

#include <gtest/gtest.h>

namespace
{
/** Lines with their runs: "'plain'" or "Name(attribute=value)'content'". Checks that the ranges fit each other. */
FString Read(const FString& Markup)
{
	TArray<FTextLineParseResults> Lines;
	FString Text;
	FDefaultRichTextMarkupParser::Create()->Process(Lines, Markup, Text);
	const auto Cut = [&Text](const FTextRange& Range)
	{
		return Text.Mid(Range.BeginIndex, Range.Len());
	};
	FString Result;
	for (const FTextLineParseResults& Line : Lines)
	{
		Result += Result.IsEmpty() && &Line == &Lines[0] ? TEXT("") : TEXT("\n");
		int32 Reached = Line.Range.BeginIndex;
		for (const FTextRunParseResults& Run : Line.Runs)
		{
			EXPECT_EQ(Run.OriginalRange.BeginIndex, Reached);
			Reached = Run.OriginalRange.EndIndex;
			Result += Run.Name;
			for (const auto& Entry : Run.MetaData)
			{
				Result += TEXT("(") + Entry.Key + TEXT("=") + Cut(Entry.Value) + TEXT(")");
			}
			Result += TEXT("'") + Cut(Run.ContentRange) + TEXT("'");
		}
		EXPECT_EQ(Line.Range.EndIndex, Reached);
	}
	return Result;
}

struct FMarkupCase
{
	const TCHAR* Markup;
	const TCHAR* Runs;
};

class FMarkup : public testing::TestWithParam<FMarkupCase>
{
};
} // namespace

TEST_P(FMarkup, IsReadIntoRuns)
{
	const FString Runs = Read(GetParam().Markup);
	EXPECT_TRUE(Runs.Equals(GetParam().Runs)) << Runs << " instead of " << FString(GetParam().Runs);
}

INSTANTIATE_TEST_SUITE_P(Runs, FMarkup,
	testing::Values(FMarkupCase{TEXT(""), TEXT("")}, FMarkupCase{TEXT("plain"), TEXT("'plain'")},
		FMarkupCase{TEXT("<A>x</>"), TEXT("A'x'")}, FMarkupCase{TEXT("a <A>x</> b"), TEXT("'a 'A'x'' b'")},
		FMarkupCase{TEXT("<A>x</><B>y</>"), TEXT("A'x'B'y'")}, FMarkupCase{TEXT("<A></>"), TEXT("A''")},
		FMarkupCase{TEXT("<a.b_c-9>x</>"), TEXT("a.b_c-9'x'")}, FMarkupCase{TEXT("<A k=\"v w\" l=\"\">x</>"), TEXT("A(k=v w)(l=)'x'")},
		FMarkupCase{TEXT("<A k=\"a>b</>c\">x</>"), TEXT("A(k=a>b</>c)'x'")}));

INSTANTIATE_TEST_SUITE_P(Lines, FMarkup,
	testing::Values(FMarkupCase{TEXT("a\nb"), TEXT("'a'\n'b'")}, FMarkupCase{TEXT("a\r\nb"), TEXT("'a'\n'b'")},
		FMarkupCase{TEXT("a\n"), TEXT("'a'\n")}, FMarkupCase{TEXT("\n\n"), TEXT("\n\n")},
		FMarkupCase{TEXT("<A>x\ny</>"), TEXT("'<A>x'\n'y</>'")}, FMarkupCase{TEXT("<A>x</>\r\n<B>y</>"), TEXT("A'x'\nB'y'")}));

INSTANTIATE_TEST_SUITE_P(WhatIsNoRun, FMarkup,
	testing::Values(FMarkupCase{TEXT("a < b > c"), TEXT("'a < b > c'")}, FMarkupCase{TEXT("<A>x"), TEXT("'<A>x'")},
		FMarkupCase{TEXT("x</>"), TEXT("'x</>'")}, FMarkupCase{TEXT("<>x</>"), TEXT("'<>x</>'")},
		FMarkupCase{TEXT("< A>x</>"), TEXT("'< A>x</>'")}, FMarkupCase{TEXT("<A"), TEXT("'<A'")},
		FMarkupCase{TEXT("<A k>x</>"), TEXT("'<A k>x</>'")}, FMarkupCase{TEXT("<A k=v>x</>"), TEXT("'<A k=v>x</>'")},
		FMarkupCase{TEXT("<A k=\"v>x</>"), TEXT("'<A k=\"v>x</>'")}, FMarkupCase{TEXT("<A>x</A>"), TEXT("'<A>x</A>'")},
		FMarkupCase{TEXT("<A><B>x</>y</>"), TEXT("A'<B>x''y</>'")}, FMarkupCase{TEXT("vec<int> <A>x</>"), TEXT("'vec'int' <A>x'")},
		FMarkupCase{TEXT("a <! <A>x</>"), TEXT("'a <! 'A'x'")}));

INSTANTIATE_TEST_SUITE_P(CharacterReferences, FMarkup,
	testing::Values(FMarkupCase{TEXT("&lt;A&gt;x&lt;/&gt;"), TEXT("'<A>x</>'")}, FMarkupCase{TEXT("&amp;lt;"), TEXT("'&lt;'")},
		FMarkupCase{TEXT("&quot;&amp;&quot;"), TEXT("'\"&\"'")}, FMarkupCase{TEXT("&nbsp; & &l"), TEXT("'&nbsp; & &l'")},
		FMarkupCase{TEXT("&LT;"), TEXT("'&LT;'")}, FMarkupCase{TEXT("<code>a&lt;/&gt;b&amp;amp;</>c"), TEXT("code'a</>b&amp;''c'")},
		FMarkupCase{TEXT("<A k=\"&quot;&lt;\">&gt;</>"), TEXT("A(k=\"<)'>'")}, FMarkupCase{TEXT("x&"), TEXT("'x&'")}));

TEST(RichTextMarkup, HostileTextIsReadInOnePass)
{
	// Each of these would take minutes if every opening bracket searched the rest of the line.
	FString Brackets;
	FString Attributes;
	for (int32 Index = 0; Index < 200000; ++Index)
	{
		Brackets += TEXT("<A>");
		Attributes += TEXT("<A k=\"");
	}
	EXPECT_EQ(Read(Brackets).Len(), Brackets.Len() + 2);
	EXPECT_EQ(Read(Brackets + TEXT("</>")).Len(), Brackets.Len() + 2 - 2);
	EXPECT_EQ(Read(Attributes + TEXT("</>")).Len(), Attributes.Len() + 3 + 2);
}
