// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

#include <gtest/gtest.h>

namespace
{
struct FCounted : TSharedFromThis<FCounted>
{
	explicit FCounted(int32& InAlive)
		: Alive(InAlive)
	{
		++Alive;
	}
	virtual ~FCounted() { --Alive; }

	int32& Alive;
};

struct FDerived : FCounted
{
	using FCounted::FCounted;
	TSharedRef<FDerived> GetSelf() { return SharedThis(this); }
};
} // namespace

TEST(SharedPointerTest, KeepsAnObjectAsLongAsSomebodyOwnsIt)
{
	int32 Alive = 0;
	TSharedPtr<FCounted> Ptr = MakeShared<FDerived>(Alive);
	const TWeakPtr<FCounted> Weak = Ptr;
	{
		const TSharedRef<FDerived> Ref = StaticCastSharedPtr<FDerived>(Ptr)->GetSelf();
		Ptr.Reset();
		EXPECT_EQ(Alive, 1);
		EXPECT_EQ(Weak.Pin(), Ref);
	}
	EXPECT_EQ(Alive, 0);
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
}

TEST(SharedPointerDeathTest, StopsAtNull)
{
	EXPECT_DEATH(TSharedRef<int32>(static_cast<int32*>(nullptr)), "InObject != nullptr");
	EXPECT_DEATH((void)TSharedPtr<FString>()->Len(), "IsValid\\(\\)");
	EXPECT_DEATH(TSharedPtr<int32>().ToSharedRef(), "IsValid\\(\\)");
	int32 Alive = 0;
	FCounted OnTheStack(Alive);
	EXPECT_DEATH(OnTheStack.AsShared(), "IsValid\\(\\)");
	EXPECT_DEATH(*TUniquePtr<int32>(), "IsValid\\(\\)");
}
