// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "UObject/Object.h"
#include "Support/Printers.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtr.h"

#include <gtest/gtest.h>

namespace
{
class UNode : public UObject
{
public:
	~UNode() override
	{
		++NumDestroyed;
		// What goes in the same collection does not resolve any more.
		bSawDyingNeighbour |= static_cast<bool>(Watched);
	}

	void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObjects(Children); }

	TArray<TObjectPtr<UNode>> Children;
	TObjectPtr<UNode> Watched;

	static inline int32 NumDestroyed = 0;
	static inline bool bSawDyingNeighbour = false;
};
} // namespace

class ObjectTest : public testing::Test
{
protected:
	ObjectTest()
	{
		CollectGarbage();
		UNode::NumDestroyed = 0;
	}

	static UNode* MakeKept() { return NewObject<UNode>(GetTransientPackage(), NAME_None, RF_Standalone); }

	~ObjectTest() override { CollectGarbage(RF_NoFlags); }
};

TEST_F(ObjectTest, TheRootSetAndTheStandaloneFlagKeepWithWhatIsReportedAndTheOuter)
{
	UNode* Rooted = NewObject<UNode>();
	Rooted->AddToRoot();
	UNode* Parent = NewObject<UNode>();
	UNode* Child = NewObject<UNode>();
	Parent->Children.Add(Child);
	Child->Children.Add(Parent);
	const TObjectPtr<UNode> Inner = NewObject<UNode>(Child, NAME_None, RF_Standalone);
	CollectGarbage();
	EXPECT_EQ(UNode::NumDestroyed, 0);
	Inner->ClearFlags(RF_Standalone);
	CollectGarbage();
	EXPECT_EQ(UNode::NumDestroyed, 3);
	Rooted->RemoveFromRoot();
	CollectGarbage();
	EXPECT_EQ(UNode::NumDestroyed, 4);
}

TEST_F(ObjectTest, AGarbageMarkEndsItsValidityAtOnceAndTheObjectAtTheNextCollection)
{
	UNode* Parent = MakeKept();
	const TObjectPtr<UNode> Child = NewObject<UNode>();
	const TWeakObjectPtr<UNode> Weak = Child.Get();
	Parent->Children.Add(Child);
	Child->MarkAsGarbage();
	EXPECT_FALSE(IsValid(Child));
	EXPECT_TRUE(Child);
	EXPECT_FALSE(Weak.IsValid());
	CollectGarbage();
	EXPECT_EQ(UNode::NumDestroyed, 1);
	EXPECT_FALSE(Child);
	EXPECT_FALSE(Parent->Children[0]);
}

TEST_F(ObjectTest, AStalePointerDoesNotResolveToTheNextTenantOfItsSlot)
{
	const TObjectPtr<UNode> Old = NewObject<UNode>();
	UNode* Neighbour = NewObject<UNode>();
	Old->Watched = Neighbour;
	Neighbour->Watched = Old;
	CollectGarbage();
	EXPECT_FALSE(UNode::bSawDyingNeighbour);
	TArray<TObjectPtr<UNode>> NewNodes;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		NewNodes.Add(NewObject<UNode>());
	}
	EXPECT_TRUE(
		NewNodes.ContainsByPredicate([&Old](const TObjectPtr<UNode>& Node) { return Node.GetHandle().Index == Old.GetHandle().Index; }));
	EXPECT_FALSE(Old);
}

TEST(ObjectDeathTest, StopsAtMisuse)
{
	EXPECT_DEATH(UNode(), "made by NewObject alone");
	EXPECT_DEATH(TObjectPtr<UNode>()->GetName(), "A TObjectPtr was dereferenced that is null");
	EXPECT_DEATH(GetTransientPackage()->MarkAsGarbage(), "can't become garbage");
}
