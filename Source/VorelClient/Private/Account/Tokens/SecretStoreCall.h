// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>

class QObject;

enum class ESecretStoreEnd : uint8
{
	Done,
	// The store works, and holds nothing under this name.
	Missing,
	// There is none, it is locked, it doesn't answer in time.
	Failed
};

// One call of the desktop's secret store, without blocking. Once destroyed it tells nothing more; what it began may still happen.
class FSecretStoreCall final
{
public:
	// Secret: of a read one. A failure for want of an answer may be followed by the answer, such as when the user has unlocked the store.
	using FOnEnded = TFunction<void(ESecretStoreEnd End, const std::string& Secret)>;

	static TUniquePtr<FSecretStoreCall> Read(const FString& Account, double Seconds, FOnEnded OnEnded);
	static TUniquePtr<FSecretStoreCall> Write(const FString& Account, const std::string& Secret, double Seconds, FOnEnded OnEnded);
	static TUniquePtr<FSecretStoreCall> Delete(const FString& Account, double Seconds, FOnEnded OnEnded);

	~FSecretStoreCall();

private:
	FSecretStoreCall();

	template <class JobType>
	static TUniquePtr<FSecretStoreCall> Start(JobType* Job, const FString& Account, double Seconds, FOnEnded OnEnded);

	// What the job's end is connected to.
	TUniquePtr<QObject> Context;
};
