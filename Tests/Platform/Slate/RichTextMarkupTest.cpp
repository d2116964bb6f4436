// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Framework/Text/RichTextMarkupProcessing.h"

#include "Support/Printers.h"

#include <gtest/gtest.h>

/** Lines with their runs: "'plain'" or "Name(attribute=value)'content'". Checks that the ranges fit each other. */
static FString Read(const FString& Markup)
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
		Result += &Line == &Lines[0] ? TEXT("") : TEXT("\n");
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

TEST(RichTextMarkup, IsReadIntoRuns)
{
	const std::pair<const char*, const char*> Cases[] = {{"", ""}, {"plain", "'plain'"}, {"a <A>x</> b", "'a 'A'x'' b'"},
		{"<A>x</><B>y</>", "A'x'B'y'"}, {"<A></>", "A''"}, {"<a.b_c-9>x</>", "a.b_c-9'x'"}, {"<A k=\"v w\" l=\"\">x</>", "A(k=v w)(l=)'x'"},
		{"<A k=\"a>b</>c\">x</>", "A(k=a>b</>c)'x'"},
		// Lines.
		{"a\nb", "'a'\n'b'"}, {"a\r\nb", "'a'\n'b'"}, {"a\n", "'a'\n"}, {"\n\n", "\n\n"}, {"<A>x\ny</>", "'<A>x'\n'y</>'"},
		{"<A>x</>\r\n<B>y</>", "A'x'\nB'y'"},
		// What is no run.
		{"a < b > c", "'a < b > c'"}, {"<A>x", "'<A>x'"}, {"x</>", "'x</>'"}, {"<>x</>", "'<>x</>'"}, {"< A>x</>", "'< A>x</>'"},
		{"<A", "'<A'"}, {"<A k>x</>", "'<A k>x</>'"}, {"<A k=v>x</>", "'<A k=v>x</>'"}, {"<A k=\"v>x</>", "'<A k=\"v>x</>'"},
		{"<A>x</A>", "'<A>x</A>'"}, {"<A><B>x</>y</>", "A'<B>x''y</>'"}, {"vec<int> <A>x</>", "'vec'int' <A>x'"},
		{"a <! <A>x</>", "'a <! 'A'x'"},
		// Character references.
		{"&lt;A&gt;x&lt;/&gt;", "'<A>x</>'"}, {"&amp;lt;", "'&lt;'"}, {"&quot;&amp;&quot;", "'\"&\"'"}, {"&nbsp; & &l", "'&nbsp; & &l'"},
		{"&LT;", "'&LT;'"}, {"<code>a&lt;/&gt;b&amp;amp;</>c", "code'a</>b&amp;''c'"}, {"<A k=\"&quot;&lt;\">&gt;</>", "A(k=\"<)'>'"},
		{"x&", "'x&'"}};
	for (const auto& [Markup, Runs] : Cases)
	{
		EXPECT_TEXT(Read(FString(Markup)), FString(Runs));
	}
}

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
