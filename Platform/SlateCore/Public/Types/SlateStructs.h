// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreTypes.h"

/** A length in units that may be left open; open means "no wish of its own". */
struct FOptionalSize
{
	/** Stands for an open length. */
	static constexpr float Unspecified = -1.0f;

	constexpr FOptionalSize() = default;
	constexpr FOptionalSize(float InSize)
		: Size(InSize)
	{
	}

	constexpr bool IsSet() const { return Size != Unspecified; }
	constexpr float Get() const { return Size; }
	constexpr bool operator==(const FOptionalSize&) const = default;

private:
	float Size = Unspecified;
};
