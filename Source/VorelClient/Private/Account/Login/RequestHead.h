// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>
#include <string_view>

// The first lines of an HTTP request. Strict: whoever sends anything odd is no browser that comes back from a login.
struct FRequestHead
{
	static constexpr std::size_t MaxBytes = 16 * 1024;

	std::string Method;
	// Of the target, before and behind the question mark.
	std::string Path;
	std::string Query;
	std::string Host;

	// Text ends with the empty line.
	static TOptional<FRequestHead> Read(std::string_view Text);
};
