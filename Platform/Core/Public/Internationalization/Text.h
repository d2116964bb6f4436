// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"

class FFormatArgumentValue;
class FName;
class FTextData;

using FFormatNamedArguments = TMap<FString, FFormatArgumentValue>;
using FFormatOrderedArguments = TArray<FFormatArgumentValue>;

// A text for people to read. Copies share it. A localised text knows its namespace, key and source, and follows the culture, as do numbers
// and formats.
class FText
{
public:
	FText();

	static const FText& GetEmpty();
	static FText FromString(FString String);
	static FText FromName(const FName& Name);
	// Never translated.
	static FText AsCultureInvariant(FString String) { return FromString(::MoveTemp(String)); }
	static FText AsLocalizable_Advanced(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* String);

	// With the culture's grouping and signs.
	static FText AsNumber(int32 Number) { return AsNumber(static_cast<int64>(Number)); }
	static FText AsNumber(int64 Number);
	static FText AsNumber(double Number);

	// Places are "{0}" or "{Name}"; "`{" stands for a brace. A place without argument stays as it is.
	template <typename... ArgTypes>
	static FText Format(FText Pattern, ArgTypes&&... Args);
	static FText Format(FText Pattern, FFormatNamedArguments Arguments);
	static FText Format(FText Pattern, FFormatOrderedArguments Arguments);

	// The reference holds until the culture changes or the text goes.
	const FString& ToString() const;
	bool IsEmpty() const { return ToString().IsEmpty(); }

	// By what is shown, letter case counting.
	bool EqualTo(const FText& Other) const;

private:
	explicit FText(TSharedRef<FTextData> InData);

	friend class FTextInspector;

	TSharedRef<FTextData> Data;
};

// One argument of a format: a text or a number.
class FFormatArgumentValue
{
public:
	FFormatArgumentValue() = default;
	FFormatArgumentValue(FText InText)
		: Text(::MoveTemp(InText))
	{
	}
	FFormatArgumentValue(int32 Number)
		: Text(FText::AsNumber(Number))
	{
	}
	FFormatArgumentValue(int64 Number)
		: Text(FText::AsNumber(Number))
	{
	}
	FFormatArgumentValue(double Number)
		: Text(FText::AsNumber(Number))
	{
	}

	const FText& ToText() const { return Text; }

private:
	FText Text;
};

template <typename... ArgTypes>
FText FText::Format(FText Pattern, ArgTypes&&... Args)
{
	return Format(::MoveTemp(Pattern), FFormatOrderedArguments{FFormatArgumentValue(::Forward<ArgTypes>(Args))...});
}

// Looks inside a text.
class FTextInspector
{
public:
	// Unset for a text that is not localised.
	static TOptional<FString> GetNamespace(const FText& Text);
	static TOptional<FString> GetKey(const FText& Text);
	static const FString& GetSourceString(const FText& Text);
};

#define NSLOCTEXT(Namespace, Key, Literal) FText::AsLocalizable_Advanced(TEXT(Namespace), TEXT(Key), TEXT(Literal))
// The file defines LOCTEXT_NAMESPACE after its includes.
#define LOCTEXT(Key, Literal) NSLOCTEXT(LOCTEXT_NAMESPACE, Key, Literal)
#define INVTEXT(Literal) FText::AsCultureInvariant(TEXT(Literal))
