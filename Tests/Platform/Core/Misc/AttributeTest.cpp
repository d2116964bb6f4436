// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

namespace
{
struct FSource : TSharedFromThis<FSource>
{
	FText GetText() const
	{
		++NumReads;
		return FText::AsNumber(NumReads);
	}

	mutable int32 NumReads = 0;
};
} // namespace

TEST(AttributeTest, KeepsItsLastValueWhenTheObjectIsGone)
{
	TSharedPtr<FSource> Source = MakeShared<FSource>();
	const TAttribute<FText> Attribute = TAttribute<FText>::CreateSP(Source.Get(), &FSource::GetText);
	Attribute.Get();
	Source.Reset();
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_TEXT(Attribute.Get().ToString(), TEXT("1"));
}

TEST(AttributeTest, TakesLambdasAndGivesUpItsGetterForAValue)
{
	int32 NumReads = 0;
	TAttribute<int32> Attribute = TAttribute<int32>::CreateLambda([&NumReads] { return ++NumReads; });
	EXPECT_EQ(Attribute.Get(), 1);
	Attribute.Set(10);
	EXPECT_EQ(Attribute.Get(), 10);
	EXPECT_EQ(NumReads, 1);
	Attribute.Bind(TAttribute<int32>::FGetter::CreateLambda([] { return 20; }));
	EXPECT_EQ(Attribute.Get(), 20);
}
