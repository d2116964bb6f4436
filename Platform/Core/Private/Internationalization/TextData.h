// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Internationalization/Text.h"
#include "Internationalization/TextLocalizationManager.h"

// What the copies of one text share.
class FTextData
{
public:
	virtual ~FTextData() = default;

	virtual const FString& GetDisplayString() = 0;
	virtual const FString& GetSourceString() { return GetDisplayString(); }
	// Null unless the text is localised.
	virtual const FTextId* GetId() const { return nullptr; }
};

// The same in every culture.
class FConstantTextData final : public FTextData
{
public:
	explicit FConstantTextData(FString InString)
		: String(::MoveTemp(InString))
	{
	}

	const FString& GetDisplayString() override { return String; }

private:
	FString String;
};

// Built at the first reading, and again after the culture has changed.
class FCultureTextData : public FTextData
{
public:
	const FString& GetDisplayString() final;

private:
	virtual FString Build() const = 0;

	FString DisplayString;
	uint32 TextRevision = 0;
};

class FLocalizedTextData final : public FCultureTextData
{
public:
	FLocalizedTextData(FTextId InId, FString InSource)
		: Id(::MoveTemp(InId))
		, Source(::MoveTemp(InSource))
	{
	}

	const FString& GetSourceString() override { return Source; }
	const FTextId* GetId() const override { return &Id; }

private:
	FString Build() const override;

	FTextId Id;
	FString Source;
};

template <typename NumberType>
class TNumberTextData final : public FCultureTextData
{
public:
	explicit TNumberTextData(NumberType InNumber)
		: Number(InNumber)
	{
	}

private:
	FString Build() const override;

	NumberType Number;
};

class FFormattedTextData final : public FCultureTextData
{
public:
	FFormattedTextData(FText InPattern, FFormatNamedArguments InArguments)
		: Pattern(::MoveTemp(InPattern))
		, Arguments(::MoveTemp(InArguments))
	{
	}

private:
	FString Build() const override;

	FText Pattern;
	// Ordered arguments are named by their numbers.
	FFormatNamedArguments Arguments;
};
