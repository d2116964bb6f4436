// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Fonts/ShapedTextCache.h"

#include <string>
#include <unordered_map>

namespace
{
std::u16string_view ToView(FStringView Text)
{
	return std::u16string_view(Text.GetData(), static_cast<SIZE_T>(Text.Len()));
}

struct FFontKey
{
	FSlateFontInfo Font;
	float Scale;

	bool operator==(const FFontKey&) const = default;
};

struct FFontKeyHash
{
	SIZE_T operator()(const FFontKey& Key) const { return HashCombine(GetTypeHash(Key.Font), GetTypeHash(Key.Scale)); }
};

/** What shaped text depends on; the text is only looked at. */
struct FShapeQuery
{
	std::u16string_view Text;
	const FSlateFontInfo& Font;
	float Scale;
	TextBiDi::ETextDirection Direction;
	ETextShapingMethod Method;
};

struct FShapeKey
{
	std::u16string Text;
	FSlateFontInfo Font;
	float Scale;
	TextBiDi::ETextDirection Direction;
	ETextShapingMethod Method;

	explicit FShapeKey(const FShapeQuery& Query)
		: Text(Query.Text)
		, Font(Query.Font)
		, Scale(Query.Scale)
		, Direction(Query.Direction)
		, Method(Query.Method)
	{
	}

	operator FShapeQuery() const { return {Text, Font, Scale, Direction, Method}; }
};

/** Looks keys up by query, so that a hit allocates nothing. */
struct FShapeHash
{
	using is_transparent = void;

	SIZE_T operator()(const FShapeQuery& Query) const
	{
		const uint32 Style = HashCombine(GetTypeHash(Query.Font), GetTypeHash(Query.Scale));
		const uint32 Way = HashCombine(GetTypeHash(Query.Direction), GetTypeHash(Query.Method));
		return std::hash<std::u16string_view>()(Query.Text) ^ HashCombine(Style, Way);
	}
};

struct FShapeEqual
{
	using is_transparent = void;

	bool operator()(const FShapeQuery& A, const FShapeQuery& B) const
	{
		return A.Text == B.Text && A.Scale == B.Scale && A.Direction == B.Direction && A.Method == B.Method && A.Font == B.Font;
	}
};

/** Nothing that a font has a picture for. */
bool IsControl(TCHAR Character)
{
	return Character < 0x20 || (Character >= 0x7F && Character < 0xA0) || Character == 0x2028 || Character == 0x2029;
}

bool HasControls(FStringView Text)
{
	for (const TCHAR Character : Text)
	{
		if (IsControl(Character))
		{
			return true;
		}
	}
	return false;
}

/** Of the same length, with blanks in the place of control characters. */
FString BlankControls(FStringView Text)
{
	FString Result(Text);
	for (TCHAR& Character : Result)
	{
		Character = IsControl(Character) ? TEXT(' ') : Character;
	}
	return Result;
}
} // namespace

struct FShapedTextCache::FGeneration
{
	std::unordered_map<FShapeKey, TSharedRef<const FShapedText>, FShapeHash, FShapeEqual> Shaped;
	std::unordered_map<FFontKey, FFontMetrics, FFontKeyHash> Metrics;
	/** The one that was asked for last, since neighbouring runs share their font. */
	const std::pair<const FFontKey, FFontMetrics>* LastMetrics = nullptr;
	int32 NumUnits = 0;
};

FShapedTextCache::FShapedTextCache(ITextShaper& InShaper, int32 InUnitsPerGeneration)
	: Shaper(InShaper)
	, Limit(InUnitsPerGeneration)
	, Current(MakeUnique<FGeneration>())
	, Previous(MakeUnique<FGeneration>())
{
}

FShapedTextCache::~FShapedTextCache() = default;

TSharedRef<const FShapedText> FShapedTextCache::Shape(
	FStringView Text, const FSlateFontInfo& Font, float Scale, TextBiDi::ETextDirection Direction, ETextShapingMethod Method)
{
	if (HasControls(Text))
	{
		return Shape(BlankControls(Text), Font, Scale, Direction, Method);
	}
	const FShapeQuery Query{ToView(Text), Font, Scale, Direction, Method};
	if (const auto Found = Current->Shaped.find(Query); Found != Current->Shaped.end())
	{
		return Found->second;
	}
	const auto Older = Previous->Shaped.find(Query);
	const bool bKnown = Older != Previous->Shaped.end();
	const TSharedRef<const FShapedText> Shaped = bKnown ? Older->second : Shaper.Shape(Text, Font, Scale, Direction, Method);
	NumShaped += bKnown ? 0 : 1;

	// An empty text takes room as well.
	const int32 NumUnits = Text.Len() + 1;
	if (Current->NumUnits + NumUnits > Limit)
	{
		TurnGeneration();
	}
	Current->Shaped.emplace(FShapeKey(Query), Shaped);
	Current->NumUnits += NumUnits;
	return Shaped;
}

void FShapedTextCache::TurnGeneration()
{
	Swap(Current, Previous);
	Current = MakeUnique<FGeneration>();
}

FFontMetrics FShapedTextCache::GetMetrics(const FSlateFontInfo& Font, float Scale)
{
	const auto*& Last = Current->LastMetrics;
	if (!Last || Last->first.Scale != Scale || !(Last->first.Font == Font))
	{
		const auto [Entry, bNew] = Current->Metrics.try_emplace(FFontKey{Font, Scale});
		if (bNew)
		{
			Entry->second = Shaper.GetMetrics(Font, Scale);
		}
		Last = &*Entry;
	}
	return Last->second;
}
