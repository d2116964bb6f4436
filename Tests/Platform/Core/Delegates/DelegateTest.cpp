// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"
#include "UObject/Object.h"

#include <gtest/gtest.h>

DECLARE_DELEGATE_OneParam(FOnText, const FString& /* Text */);
DECLARE_DELEGATE_RetVal_OneParam(int32, FOnSum, int32);

namespace
{
struct FListener : TSharedFromThis<FListener>
{
	void OnText(const FString& Text) { Heard += Text; }
	void OnTextWith(const FString& Text, int32 Number, FString Tail) { Heard += FString::Printf(TEXT("%s%d%s"), *Text, Number, *Tail); }
	void LoseOwner(TSharedPtr<FListener>* Owner)
	{
		Owner->Reset();
		Heard += TEXT("still here");
	}

	int32 CountReads() const { return ++NumReads; }

	FString Heard;
	mutable int32 NumReads = 0;
};

struct FDerivedListener : FListener
{
};

class UListener : public UObject
{
public:
	void OnText(const FString& Text) { Heard += Text; }

	FString Heard;
};
} // namespace

TEST(DelegateTest, AddsPayloadAndHoldsASharedObjectWeakly)
{
	TSharedPtr<FDerivedListener> Listener = MakeShared<FDerivedListener>();
	FOnText Delegate = FOnText::CreateSP(Listener.ToSharedRef(), &FDerivedListener::OnTextWith, 7, FString(TEXT("!")));
	Delegate.ExecuteIfBound(TEXT("a"));
	Delegate.BindSP(Listener.Get(), &FListener::OnText);
	Delegate.ExecuteIfBound(TEXT("b"));
	EXPECT_TEXT(Listener->Heard, TEXT("a7!b"));
	EXPECT_TRUE(Delegate.IsBoundToObject(Listener.Get()));
	EXPECT_EQ(Listener.GetSharedReferenceCount(), 1);
	Listener.Reset();
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(TEXT("x")));
}

TEST(DelegateTest, HoldsAnObjectWeakly)
{
	UListener* Listener = NewObject<UListener>();
	const FOnText Method = FOnText::CreateUObject(Listener, &UListener::OnText);
	const FOnText Lambda = FOnText::CreateWeakLambda(Listener, [Listener](const FString& Text) { Listener->OnText(Text + TEXT("!")); });
	Method.ExecuteIfBound(TEXT("a"));
	Lambda.ExecuteIfBound(TEXT("b"));
	EXPECT_TEXT(Listener->Heard, TEXT("ab!"));
	Listener->MarkAsGarbage();
	EXPECT_FALSE(Method.IsBound());
	CollectGarbage();
	EXPECT_FALSE(Method.ExecuteIfBound(TEXT("c")));
	EXPECT_FALSE(Lambda.ExecuteIfBound(TEXT("c")));
}

TEST(DelegateTest, AHandlerMayDestroyItsDelegateAndAnObjectMayLoseItsLastOwner)
{
	TUniquePtr<FSimpleDelegate> Delegate = MakeUnique<FSimpleDelegate>();
	FString Log;
	Delegate->BindLambda(
		[&, Captured = FString(TEXT("captured text that lives in the binding"))]
		{
			Delegate->Unbind();
			Delegate.Reset();
			Log += Captured;
		});
	Delegate->ExecuteIfBound();
	EXPECT_TEXT(Log, TEXT("captured text that lives in the binding"));

	TSharedPtr<FListener> Owner = MakeShared<FListener>();
	FSimpleDelegate::CreateSP(Owner.Get(), &FListener::LoseOwner, &Owner).ExecuteIfBound();
	EXPECT_FALSE(Owner.IsValid());
}

TEST(DelegateDeathTest, StopsWhereAnUnboundOneIsExecuted)
{
	EXPECT_DEATH(FOnSum().Execute(1), "not bound");
}

TEST(AttributeTest, KeepsItsLastValueWhenTheObjectIsGoneAndGivesUpItsGetterForAValue)
{
	TSharedPtr<FListener> Source = MakeShared<FListener>();
	TAttribute<int32> Attribute = TAttribute<int32>::CreateSP(Source.Get(), &FListener::CountReads);
	EXPECT_EQ(Attribute.Get(), 1);
	Source.Reset();
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_EQ(Attribute.Get(), 1);
	Attribute.Bind(TAttribute<int32>::FGetter::CreateLambda([] { return 20; }));
	EXPECT_EQ(Attribute.Get(), 20);
	Attribute.Set(10);
	EXPECT_EQ(Attribute.Get(), 10);
}
