// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Styling/SlateStyle.h"

struct FSlateStyleSet::FValues
{
	TMap<FName, float> Floats;
	TMap<FName, FVector2D> Vectors;
	TMap<FName, FMargin> Margins;
	TMap<FName, FLinearColor> Colors;
	TMap<FName, FSlateColor> SlateColors;
	TMap<FName, FSlateFontInfo> Fonts;
	TMap<FName, const FSlateBrush*> Brushes;
	TMap<FName, const FSlateWidgetStyle*> WidgetStyles;
	TMap<const FSlateBrush*, FName> BrushNames;

	/** Widgets hold pointers to these, so what is replaced stays as well. */
	TArray<TUniquePtr<FSlateBrush>> OwnedBrushes;
	TArray<TSharedRef<FSlateWidgetStyle>> OwnedWidgetStyles;
};

namespace
{
FName Join(const FName& Name, const ANSICHAR* Specifier)
{
	return Specifier == nullptr ? Name : FName(*(Name.ToString() + FString(Specifier)));
}

template <typename ValueType>
const ValueType& FindOr(const TMap<FName, ValueType>& Map, const FName& Name, const ANSICHAR* Specifier, const ValueType& Default)
{
	const ValueType* Found = Map.Find(Join(Name, Specifier));
	return Found != nullptr ? *Found : Default;
}
} // namespace

FSlateStyleSet::FSlateStyleSet(const FName& InStyleSetName)
	: StyleSetName(InStyleSetName)
	, Values(MakeUnique<FValues>())
{
}

FSlateStyleSet::~FSlateStyleSet() = default;

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath, const TCHAR* Extension) const
{
	return (ContentRoot.IsEmpty() ? RelativePath : ContentRoot / RelativePath) + Extension;
}

void FSlateStyleSet::Set(const FName& PropertyName, float Value)
{
	Values->Floats.Add(PropertyName, Value);
}

void FSlateStyleSet::Set(const FName& PropertyName, const FVector2D& Value)
{
	Values->Vectors.Add(PropertyName, Value);
}

void FSlateStyleSet::Set(const FName& PropertyName, const FMargin& Value)
{
	Values->Margins.Add(PropertyName, Value);
}

void FSlateStyleSet::Set(const FName& PropertyName, const FLinearColor& Value)
{
	Set(PropertyName, FSlateColor(Value));
}

void FSlateStyleSet::Set(const FName& PropertyName, const FSlateColor& Value)
{
	const FSlateColor Kept = Value;
	Values->SlateColors.Add(PropertyName, Kept);
	if (Kept.IsColorSpecified())
	{
		Values->Colors.Add(PropertyName, Kept.GetSpecifiedColor());
	}
	else
	{
		Values->Colors.Remove(PropertyName);
	}
}

void FSlateStyleSet::Set(const FName& PropertyName, const FSlateFontInfo& Value)
{
	Values->Fonts.Add(PropertyName, Value);
}

void FSlateStyleSet::Set(const FName& PropertyName, FSlateBrush* Brush)
{
	check(Brush != nullptr);
	Values->OwnedBrushes.Add(TUniquePtr<FSlateBrush>(Brush));
	Values->Brushes.Add(PropertyName, Brush);
	Values->BrushNames.Add(Brush, PropertyName);
}

void FSlateStyleSet::SetWidgetStyle(const FName& PropertyName, const TSharedRef<FSlateWidgetStyle>& Style)
{
	Values->OwnedWidgetStyles.Add(Style);
	Values->WidgetStyles.Add(PropertyName, &*Style);
}

float FSlateStyleSet::GetFloat(const FName& PropertyName, const ANSICHAR* Specifier, float Default) const
{
	return FindOr(Values->Floats, PropertyName, Specifier, Default);
}

FVector2D FSlateStyleSet::GetVector(const FName& PropertyName, const ANSICHAR* Specifier, const FVector2D& Default) const
{
	return FindOr(Values->Vectors, PropertyName, Specifier, Default);
}

const FMargin& FSlateStyleSet::GetMargin(const FName& PropertyName, const ANSICHAR* Specifier, const FMargin& Default) const
{
	return FindOr(Values->Margins, PropertyName, Specifier, Default);
}

const FLinearColor& FSlateStyleSet::GetColor(const FName& PropertyName, const ANSICHAR* Specifier, const FLinearColor& Default) const
{
	return FindOr(Values->Colors, PropertyName, Specifier, Default);
}

const FSlateColor FSlateStyleSet::GetSlateColor(const FName& PropertyName, const ANSICHAR* Specifier, const FSlateColor& Default) const
{
	return FindOr(Values->SlateColors, PropertyName, Specifier, Default);
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName& PropertyName, const ANSICHAR* Specifier) const
{
	return GetOptionalBrush(PropertyName, Specifier, FStyleDefaults::GetNoBrush());
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(const FName& PropertyName, const ANSICHAR* Specifier, const FSlateBrush* Default) const
{
	return FindOr(Values->Brushes, PropertyName, Specifier, Default);
}

FSlateFontInfo FSlateStyleSet::GetFontStyle(const FName& PropertyName, const ANSICHAR* Specifier) const
{
	return FindOr(Values->Fonts, PropertyName, Specifier, FStyleDefaults::GetFontInfo());
}

FName FSlateStyleSet::FindBrushName(const FSlateBrush* Brush) const
{
	return Values->BrushNames.FindRef(Brush);
}

const FSlateWidgetStyle* FSlateStyleSet::GetWidgetStyleInternal(const FName& TypeName, const FName& PropertyName) const
{
	const FSlateWidgetStyle* Found = Values->WidgetStyles.FindRef(PropertyName);
	return Found != nullptr && Found->GetTypeName() == TypeName ? Found : nullptr;
}
