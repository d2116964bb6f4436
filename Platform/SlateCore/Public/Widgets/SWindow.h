// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Widgets/SCompoundWidget.h"

/**
 * The root of a widget tree. The desktop gives it a size and a scale, paints what GetDisplayList holds, and repaints what TakeDamage names.
 * Absolute space begins in its top left corner.
 */
class SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	SWindow();
	void Construct(const FArguments& InArgs);

	void SetContent(const TSharedRef<SWidget>& InContent);
	const TSharedRef<SWidget>& GetContent() const { return ChildSlot.GetWidget(); }

	/** The size in device pixels, and device pixels per unit. */
	void SetClientArea(const FVector2D& SizeInPixels, float InScale);
	const FVector2D& GetClientSizeInPixels() const { return ClientSize; }
	float GetDPIScaleFactor() const { return Scale; }

	FGeometry GetWindowGeometryInWindow() const;

	/** What was painted last; null before the first frame. */
	const TSharedPtr<const FSlateDrawChunk>& GetDisplayList() const { return DisplayList; }

	/** The parts that were painted anew since the last call, in device pixels. */
	TArray<FSlateRect> TakeDamage();
	bool HasDamage() const { return Damage.Num() > 0; }

protected:
	virtual void OnTreeInvalidated() override;

private:
	friend class FSlateFrame;

	/** Replaces the display list and notes what changed. */
	void SetDisplayList(const TSharedRef<const FSlateDrawChunk>& NewList);

	FVector2D ClientSize = FVector2D(0.0, 0.0);
	float Scale = 1.0f;
	TSharedPtr<const FSlateDrawChunk> DisplayList;
	TArray<FSlateRect> Damage;
};
