// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/BackgroundRequest.h"

#include "Http/HttpFailure.h"

FString BackgroundRequest::Describe(const FHttpFailure& Failure)
{
	return Failure.Kind == EHttpFailure::Status ? FString::Printf(TEXT("the server answered with status %d"), Failure.Status)
												: FString::Printf(TEXT("%s could not be reached, or broke off"), *Failure.Host);
}
