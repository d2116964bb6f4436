// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"
#include "Rendering/RenderingCommon.h"
#include "Styling/SlateBrush.h"

#include <variant>

class FShapedText;
class FSlateDrawChunk;
class FSlateWindowElementList;
class SWidget;

/** A filled or imaged area. */
struct FSlateBoxPayload
{
	FSlateBrush Brush;
	bool operator==(const FSlateBoxPayload&) const = default;
};

/** Glyphs; the top of the geometry is the top of their line, the baseline lies the font's Ascent below it. */
struct FSlateTextPayload
{
	TSharedRef<const FShapedText> Text;
	bool operator==(const FSlateTextPayload& Other) const { return &*Text == &*Other.Text; }
};

/** One thing to draw, in device pixels of the window. */
class FSlateDrawElement
{
public:
	using FPayload = std::variant<FSlateBoxPayload, FSlateTextPayload>;

	/** LayerId is the engine's; elements are drawn in the order in which they were made. A brush that draws nothing adds nothing. */
	static void MakeBox(FSlateWindowElementList& OutDrawElements, uint32 LayerId, const FPaintGeometry& PaintGeometry,
		const FSlateBrush* Brush, ESlateDrawEffect DrawEffects = ESlateDrawEffect::None,
		const FLinearColor& Tint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
	/** Tint is the color of the letters; colored glyphs keep their own and take its alpha. */
	static void MakeShapedText(FSlateWindowElementList& OutDrawElements, uint32 LayerId, const FPaintGeometry& PaintGeometry,
		const TSharedRef<const FShapedText>& ShapedText, ESlateDrawEffect DrawEffects = ESlateDrawEffect::None,
		const FLinearColor& Tint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
	const FPayload& GetPayload() const { return Payload; }
	const FPaintGeometry& GetGeometry() const { return Geometry; }
	const FLinearColor& GetTint() const { return Tint; }
	ESlateDrawEffect GetDrawEffects() const { return DrawEffects; }

	/** Around everything it may touch. */
	FSlateRect GetBounds() const;

	bool operator==(const FSlateDrawElement& Other) const = default;

private:
	FSlateDrawElement(FPayload InPayload, const FPaintGeometry& InGeometry, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint);

	FPayload Payload;
	FPaintGeometry Geometry;
	FLinearColor Tint;
	ESlateDrawEffect DrawEffects;
};

/**
 * What one widget draws: its own elements and its children's chunks, in order. A widget that did not change hands out the same chunk again,
 * so that two frames are compared by pointers.
 */
class FSlateDrawChunk
{
public:
	using FItem = std::variant<FSlateDrawElement, TSharedRef<const FSlateDrawChunk>>;

	FSlateDrawChunk(const SWidget* InOwner, const TOptional<FSlateRect>& InClip)
		: Owner(InOwner)
		, Clip(InClip)
	{
	}

	const TArray<FItem>& GetItems() const { return Items; }

	/** Set for a widget that clips: nothing in this chunk is drawn outside of it. In device pixels. */
	const TOptional<FSlateRect>& GetClip() const { return Clip; }

	/** Around everything in it, cut to the clip. */
	const FSlateRect& GetBounds() const { return Bounds; }

	/** Tells whether two chunks belong to the same widget; never followed. */
	const SWidget* GetOwner() const { return Owner; }

	/** Adds the rectangles in which the two differ. */
	static void FindDamage(const FSlateDrawChunk& Old, const FSlateDrawChunk& New, TArray<FSlateRect>& OutDamage);

private:
	friend class FSlateWindowElementList;

	void Add(FItem&& Item);

	const SWidget* Owner;
	TOptional<FSlateRect> Clip;
	FSlateRect Bounds;
	TArray<FItem> Items;
};

/** Where OnPaint puts what it draws: the chunk of the widget that is being painted. */
class FSlateWindowElementList
{
public:
	FSlateWindowElementList();

	void AddElement(FSlateDrawElement&& Element);
	void AddChunk(const TSharedRef<const FSlateDrawChunk>& Chunk);

	/** Elements go into the new chunk until EndChunk, which adds nothing to the chunk around it. */
	void BeginChunk(const SWidget* Owner, const TOptional<FSlateRect>& Clip);
	TSharedRef<const FSlateDrawChunk> EndChunk();

private:
	TArray<TSharedRef<FSlateDrawChunk>> Open;
};
