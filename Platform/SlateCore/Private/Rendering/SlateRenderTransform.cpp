// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Rendering/SlateRenderTransform.h"

FSlateRenderTransform::FSlateRenderTransform(const FVector2D& InTranslation)
	: Translation(InTranslation)
{
}

FSlateRenderTransform::FSlateRenderTransform(float UniformScale, const FVector2D& InTranslation)
	: Matrix{UniformScale, 0.0f, 0.0f, UniformScale}
	, Translation(InTranslation)
{
}

FSlateRenderTransform::FSlateRenderTransform(const FMatrix2x2& InMatrix, const FVector2D& InTranslation)
	: Matrix(InMatrix)
	, Translation(InTranslation)
{
}

FVector2D FSlateRenderTransform::TransformVector(const FVector2D& Vector) const
{
	return FVector2D(Vector.X * Matrix.M00 + Vector.Y * Matrix.M10, Vector.X * Matrix.M01 + Vector.Y * Matrix.M11);
}

FVector2D FSlateRenderTransform::TransformPoint(const FVector2D& Point) const
{
	return TransformVector(Point) + Translation;
}

FSlateRenderTransform FSlateRenderTransform::Concatenate(const FSlateRenderTransform& Then) const
{
	const FMatrix2x2& A = Matrix;
	const FMatrix2x2& B = Then.Matrix;
	const FMatrix2x2 Product{
		A.M00 * B.M00 + A.M01 * B.M10, A.M00 * B.M01 + A.M01 * B.M11, A.M10 * B.M00 + A.M11 * B.M10, A.M10 * B.M01 + A.M11 * B.M11};
	return FSlateRenderTransform(Product, Then.TransformPoint(Translation));
}

FSlateRenderTransform FSlateRenderTransform::Inverse() const
{
	const float Determinant = Matrix.M00 * Matrix.M11 - Matrix.M01 * Matrix.M10;
	if (Determinant == 0.0f)
	{
		return FSlateRenderTransform();
	}
	const float Factor = 1.0f / Determinant;
	const FSlateRenderTransform Linear(FMatrix2x2{Matrix.M11 * Factor, -Matrix.M01 * Factor, -Matrix.M10 * Factor, Matrix.M00 * Factor});
	return FSlateRenderTransform(Linear.Matrix, -Linear.TransformVector(Translation));
}

bool FSlateRenderTransform::operator==(const FSlateRenderTransform& Other) const
{
	return Matrix == Other.Matrix && Translation == Other.Translation;
}
