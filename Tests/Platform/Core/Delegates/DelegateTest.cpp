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
	virtual ~FListener() = default;

	void OnText(const FString& Text) { Heard += Text; }
	void OnTextWith(const FString& Text, int32 Number, FString Tail) { Heard += FString::Printf(TEXT("%s%d%s"), *Text, Number, *Tail); }

	FString Heard;
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

TEST(DelegateTest, AddsPayloadBehindTheParameters)
{
	const TSharedRef<FDerivedListener> Listener = MakeShared<FDerivedListener>();
	const FOnText Delegate = FOnText::CreateSP(Listener, &FDerivedListener::OnTextWith, 7, FString(TEXT("!")));
	Delegate.ExecuteIfBound(TEXT("a"));
	Delegate.ExecuteIfBound(TEXT("b"));
	EXPECT_TEXT(Listener->Heard, TEXT("a7!b7!"));
}

TEST(DelegateTest, HoldsASharedObjectWeakly)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	FOnText Delegate;
	Delegate.BindSP(Listener.Get(), &FListener::OnText);
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

TEST(DelegateTest, AHandlerMayRebindAndDestroyItsDelegate)
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
}

TEST(DelegateTest, AnObjectMayLoseItsLastOwnerInItsHandler)
{
	struct FDying : TSharedFromThis<FDying>
	{
		void Die(TSharedPtr<FDying>* Owner)
		{
			Owner->Reset();
			Text += TEXT("still here");
		}
		FString Text;
	};
	TSharedPtr<FDying> Owner = MakeShared<FDying>();
	const TWeakPtr<FDying> Weak = Owner;
	FSimpleDelegate::CreateSP(Owner.Get(), &FDying::Die, &Owner).ExecuteIfBound();
	EXPECT_FALSE(Weak.IsValid());
}

TEST(DelegateDeathTest, StopsWhereAnUnboundOneIsExecuted)
{
	EXPECT_DEATH(FOnSum().Execute(1), "not bound");
	EXPECT_DEATH(FOnText().Execute(TEXT("x")), "not bound");
}
