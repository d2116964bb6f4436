// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

/** Four numbers; as corner radii: top left, top right, bottom right, bottom left. */
struct FVector4
{
	double X = 0.0;
	double Y = 0.0;
	double Z = 0.0;
	double W = 0.0;

	constexpr bool operator==(const FVector4&) const = default;
};
