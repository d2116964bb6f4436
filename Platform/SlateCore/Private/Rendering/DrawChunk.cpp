// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Rendering/DrawElements.h"

namespace
{
using FItem = FSlateDrawChunk::FItem;

const FSlateDrawChunk* AsChunk(const FItem& Item)
{
	const TSharedRef<const FSlateDrawChunk>* Chunk = std::get_if<TSharedRef<const FSlateDrawChunk>>(&Item);
	return Chunk != nullptr ? &**Chunk : nullptr;
}

FSlateRect GetItemBounds(const FItem& Item)
{
	const FSlateDrawChunk* Chunk = AsChunk(Item);
	return Chunk != nullptr ? Chunk->GetBounds() : std::get<FSlateDrawElement>(Item).GetBounds();
}

/** Whether both are the same element, or what the same widget drew. */
bool AreCounterparts(const FItem& Old, const FItem& New)
{
	const FSlateDrawChunk* OldChunk = AsChunk(Old);
	const FSlateDrawChunk* NewChunk = AsChunk(New);
	if (OldChunk != nullptr && NewChunk != nullptr)
	{
		return OldChunk->GetOwner() == NewChunk->GetOwner();
	}
	return OldChunk == nullptr && NewChunk == nullptr && std::get<FSlateDrawElement>(Old) == std::get<FSlateDrawElement>(New);
}

void AddDamage(const FSlateRect& Rect, TArray<FSlateRect>& OutDamage)
{
	if (!Rect.IsEmpty())
	{
		OutDamage.Add(Rect);
	}
}

void CompareItems(const FItem& Old, const FItem& New, TArray<FSlateRect>& OutDamage)
{
	if (!AreCounterparts(Old, New))
	{
		AddDamage(GetItemBounds(Old), OutDamage);
		AddDamage(GetItemBounds(New), OutDamage);
	}
	else if (const FSlateDrawChunk* OldChunk = AsChunk(Old))
	{
		FSlateDrawChunk::FindDamage(*OldChunk, *AsChunk(New), OutDamage);
	}
}
} // namespace

void FSlateDrawChunk::FindDamage(const FSlateDrawChunk& Old, const FSlateDrawChunk& New, TArray<FSlateRect>& OutDamage)
{
	if (&Old == &New)
	{
		return;
	}
	if (!(Old.Clip == New.Clip))
	{
		AddDamage(Old.Bounds, OutDamage);
		AddDamage(New.Bounds, OutDamage);
		return;
	}
	const int32 Shorter = FMath::Min(Old.Items.Num(), New.Items.Num());
	const bool bSameLength = Old.Items.Num() == New.Items.Num();
	int32 Head = 0;
	while (Head < Shorter && (bSameLength || AreCounterparts(Old.Items[Head], New.Items[Head])))
	{
		CompareItems(Old.Items[Head], New.Items[Head], OutDamage);
		++Head;
	}
	int32 Tail = 0;
	while (Head + Tail < Shorter && AreCounterparts(Old.Items.Last(Tail), New.Items.Last(Tail)))
	{
		CompareItems(Old.Items.Last(Tail), New.Items.Last(Tail), OutDamage);
		++Tail;
	}
	for (int32 Index = Head; Index < Old.Items.Num() - Tail; ++Index)
	{
		AddDamage(GetItemBounds(Old.Items[Index]), OutDamage);
	}
	for (int32 Index = Head; Index < New.Items.Num() - Tail; ++Index)
	{
		AddDamage(GetItemBounds(New.Items[Index]), OutDamage);
	}
}

void FSlateDrawChunk::Add(FItem&& Item)
{
	const FSlateRect ItemBounds = GetItemBounds(Item);
	Bounds = Bounds.Expand(Clip.IsSet() ? ItemBounds.IntersectionWith(Clip.GetValue()) : ItemBounds);
	Items.Add(MoveTemp(Item));
}

FSlateWindowElementList::FSlateWindowElementList() = default;

void FSlateWindowElementList::AddElement(FSlateDrawElement&& Element)
{
	Open.Last()->Add(MoveTemp(Element));
}

void FSlateWindowElementList::AddChunk(const TSharedRef<const FSlateDrawChunk>& Chunk)
{
	if (!Chunk->GetItems().IsEmpty())
	{
		Open.Last()->Add(Chunk);
	}
}

void FSlateWindowElementList::BeginChunk(const SWidget* Owner, const TOptional<FSlateRect>& Clip)
{
	Open.Add(MakeShared<FSlateDrawChunk>(Owner, Clip));
}

TSharedRef<const FSlateDrawChunk> FSlateWindowElementList::EndChunk()
{
	return Open.Pop();
}
