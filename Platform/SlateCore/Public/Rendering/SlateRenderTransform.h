// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

/** A 2 by 2 matrix; row vectors are multiplied from the left. */
struct FMatrix2x2
{
	float M00 = 1.0f;
	float M01 = 0.0f;
	float M10 = 0.0f;
	float M11 = 1.0f;

	constexpr bool operator==(const FMatrix2x2&) const = default;
};

/** An affine transform of the plane: first the matrix, then the translation. */
class FSlateRenderTransform
{
public:
	FSlateRenderTransform() = default;
	explicit FSlateRenderTransform(const FVector2D& InTranslation);
	explicit FSlateRenderTransform(float UniformScale, const FVector2D& InTranslation = FVector2D(0.0, 0.0));
	FSlateRenderTransform(const FMatrix2x2& InMatrix, const FVector2D& InTranslation = FVector2D(0.0, 0.0));

	const FMatrix2x2& GetMatrix() const { return Matrix; }
	FVector2D GetTranslation() const { return Translation; }

	FVector2D TransformPoint(const FVector2D& Point) const;
	FVector2D TransformVector(const FVector2D& Vector) const;

	/** The transform that does this one first and then the other. */
	FSlateRenderTransform Concatenate(const FSlateRenderTransform& Then) const;

	/** A transform that cannot be undone yields the identity. */
	FSlateRenderTransform Inverse() const;

	bool operator==(const FSlateRenderTransform& Other) const;

private:
	FMatrix2x2 Matrix;
	FVector2D Translation = FVector2D(0.0, 0.0);
};
