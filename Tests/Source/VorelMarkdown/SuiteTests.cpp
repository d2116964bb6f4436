// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownSuite.h"
#include "MarkupTestSupport.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace
{
// Example numbers, with the reason why they are shown otherwise.
using FDeviations = std::map<int, std::string_view>;

void ExpectExample(const FSuiteExample& Example, const FDeviations& Deviations)
{
	const std::string Markup = RenderMarkup(Example.Markdown);
	EXPECT_EQ(FindMarkupError(ReadMarkup(Markup)), "") << Example.Markdown;
	const auto Deviation = Deviations.find(Example.Number);
	if (Deviation == Deviations.end())
	{
		EXPECT_EQ(DescribeMarkup(Markup), DescribeExpected(Example)) << "example " << Example.Number << " of: " << Example.Markdown;
	}
	else
	{
		EXPECT_NE(DescribeMarkup(Markup), DescribeExpected(Example)) << Example.Number << " no longer deviates: " << Deviation->second;
	}
}
} // namespace

TEST(Suite, EveryExampleOfCommonMarkIsShownWithItsTextAndFormats)
{
	const std::vector<FSuiteExample> Examples = ReadSuite("commonmark");
	ASSERT_EQ(Examples.size(), 652u);
	const FDeviations Deviations = {{171, "md4c 0.4.8 does not know that <textarea> lasts until its end tag"},
		{354, "md4c 0.4.8 takes currency signs for letters"}, {608, "a bare address is a link"}, {611, "a bare address is a link"},
		{612, "a bare address is a link"}};
	for (const FSuiteExample& Example : Examples)
	{
		ExpectExample(Example, Deviations);
	}
}

TEST(Suite, TheTablesTasksStrikesAndLinksOfGfmToo)
{
	const std::set<std::string> Extensions = {"table", "disabled", "strikethrough", "autolink"};
	size_t Count = 0;
	for (const FSuiteExample& Example : ReadSuite("gfm"))
	{
		if (Extensions.contains(Example.Extension))
		{
			++Count;
			ExpectExample(Example, {});
		}
	}
	EXPECT_EQ(Count, 23u);
}
