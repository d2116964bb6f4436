// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include "Styling/StyleDefaults.h"

struct FSlateFontInfo;
struct FSlateWidgetStyle;

/**
 * A set of named colors, brushes, fonts and widget styles. A look-up that finds nothing returns the default it was given: a missing name is
 * the world's, not a mistake of the caller. Names compare without regard to case.
 */
class ISlateStyle
{
public:
	virtual ~ISlateStyle() = default;

	virtual const FName& GetStyleSetName() const = 0;

	/** The folder that the set's images are relative to. */
	virtual const FString& GetContentRootDir() const = 0;

	/** A widget style of the wrong type counts as missing. */
	template <typename WidgetStyleType>
	const WidgetStyleType& GetWidgetStyle(const FName& PropertyName) const
	{
		const FSlateWidgetStyle* Found = GetWidgetStyleInternal(WidgetStyleType::TypeName, PropertyName);
		return Found ? static_cast<const WidgetStyleType&>(*Found) : WidgetStyleType::GetDefault();
	}

	template <typename WidgetStyleType>
	bool HasWidgetStyle(const FName& PropertyName) const
	{
		return GetWidgetStyleInternal(WidgetStyleType::TypeName, PropertyName) != nullptr;
	}

	virtual float GetFloat(
		const FName& PropertyName, const ANSICHAR* Specifier = nullptr, float Default = FStyleDefaults::GetFloat()) const = 0;
	virtual FVector2D GetVector(
		const FName& PropertyName, const ANSICHAR* Specifier = nullptr, const FVector2D& Default = FStyleDefaults::GetVector2D()) const = 0;
	virtual const FMargin& GetMargin(
		const FName& PropertyName, const ANSICHAR* Specifier = nullptr, const FMargin& Default = FStyleDefaults::GetMargin()) const = 0;
	virtual const FLinearColor& GetColor(
		const FName& PropertyName, const ANSICHAR* Specifier = nullptr, const FLinearColor& Default = FStyleDefaults::GetColor()) const = 0;
	virtual const FSlateColor GetSlateColor(const FName& PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateColor& Default = FStyleDefaults::GetSlateColor()) const = 0;

	/** Never null: a missing brush is one that draws nothing. */
	virtual const FSlateBrush* GetBrush(const FName& PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	virtual const FSlateBrush* GetOptionalBrush(const FName& PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateBrush* Default = FStyleDefaults::GetNoBrush()) const = 0;
	virtual FSlateFontInfo GetFontStyle(const FName& PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** The name under which this very brush was set; none for a brush of another set. */
	virtual FName FindBrushName(const FSlateBrush* Brush) const = 0;

protected:
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(const FName& TypeName, const FName& PropertyName) const = 0;
};
