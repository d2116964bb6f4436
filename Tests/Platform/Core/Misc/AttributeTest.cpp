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

TEST(AttributeTest, HoldsAValue)
{
	TAttribute<float> Attribute;
	EXPECT_FALSE(Attribute.IsSet());
	EXPECT_EQ(Attribute.Get(7.0f), 7.0f);
	Attribute = 3.0f;
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(7.0f), 3.0f);
	Attribute.Set(4.0f);
	EXPECT_EQ(Attribute.Get(), 4.0f);
}

TEST(AttributeTest, CallsItsGetterAtEachRead)
{
	const TSharedRef<FSource> Source = MakeShared<FSource>();
	const TAttribute<FText> Attribute = TAttribute<FText>::CreateSP(&Source.Get(), &FSource::GetText);
	EXPECT_EQ(Source->NumReads, 0);
	EXPECT_TEXT(Attribute.Get().ToString(), TEXT("1"));
	EXPECT_TEXT(Attribute.Get().ToString(), TEXT("2"));
	const TAttribute<FText> Copy = Attribute;
	EXPECT_TEXT(Copy.Get().ToString(), TEXT("3"));
}

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
