// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateWidgetStyle.h"

/** A style set that is filled by name. Setting a name again replaces its value; brushes that were handed out stay alive with the set. */
class FSlateStyleSet : public ISlateStyle
{
public:
	explicit FSlateStyleSet(const FName& InStyleSetName);
	virtual ~FSlateStyleSet() override;
	FSlateStyleSet(const FSlateStyleSet&) = delete;
	FSlateStyleSet& operator=(const FSlateStyleSet&) = delete;

	virtual const FName& GetStyleSetName() const override { return StyleSetName; }

	/** The folder that image names are relative to. Without one they stay as they are. */
	void SetContentRoot(const FString& InContentRoot) { ContentRoot = InContentRoot; }
	virtual const FString& GetContentRootDir() const override { return ContentRoot; }
	FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension = TEXT("")) const;

	void Set(const FName& PropertyName, float Value);
	void Set(const FName& PropertyName, const FVector2D& Value);
	void Set(const FName& PropertyName, const FMargin& Value);
	void Set(const FName& PropertyName, const FLinearColor& Value);
	void Set(const FName& PropertyName, const FSlateColor& Value);
	void Set(const FName& PropertyName, const FSlateFontInfo& Value);

	/** Takes ownership of the brush. */
	void Set(const FName& PropertyName, FSlateBrush* Brush);

	template <typename WidgetStyleType>
	requires std::is_base_of_v<FSlateWidgetStyle, WidgetStyleType>
	void Set(const FName& PropertyName, const WidgetStyleType& Style) { SetWidgetStyle(PropertyName, MakeShared<WidgetStyleType>(Style)); }

	virtual float GetFloat(
		const FName& PropertyName, const ANSICHAR* Specifier = nullptr, float Default = FStyleDefaults::GetFloat()) const override;
	virtual FVector2D GetVector(const FName& PropertyName, const ANSICHAR* Specifier = nullptr,
		const FVector2D& Default = FStyleDefaults::GetVector2D()) const override;
	virtual const FMargin& GetMargin(const FName& PropertyName, const ANSICHAR* Specifier = nullptr,
		const FMargin& Default = FStyleDefaults::GetMargin()) const override;
	virtual const FLinearColor& GetColor(const FName& PropertyName, const ANSICHAR* Specifier = nullptr,
		const FLinearColor& Default = FStyleDefaults::GetColor()) const override;
	virtual const FSlateColor GetSlateColor(const FName& PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateColor& Default = FStyleDefaults::GetSlateColor()) const override;
	virtual const FSlateBrush* GetBrush(const FName& PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	virtual const FSlateBrush* GetOptionalBrush(const FName& PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateBrush* Default = FStyleDefaults::GetNoBrush()) const override;
	virtual FSlateFontInfo GetFontStyle(const FName& PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	virtual FName FindBrushName(const FSlateBrush* Brush) const override;

protected:
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(const FName& TypeName, const FName& PropertyName) const override;

private:
	struct FValues;

	void SetWidgetStyle(const FName& PropertyName, const TSharedRef<FSlateWidgetStyle>& Style);

	FName StyleSetName;
	FString ContentRoot;
	TUniquePtr<FValues> Values;
};
