// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Internationalization/Text.h"
#include "TextData.h"
#include "UObject/NameTypes.h"

FText::FText()
	: FText(GetEmpty())
{
}

FText::FText(TSharedRef<FTextData> InData)
	: Data(::MoveTemp(InData))
{
}

const FText& FText::GetEmpty()
{
	static const FText Empty(MakeShared<FConstantTextData>(FString()));
	return Empty;
}

FText FText::FromString(FString String)
{
	return String.IsEmpty() ? GetEmpty() : FText(MakeShared<FConstantTextData>(::MoveTemp(String)));
}

FText FText::FromName(const FName& Name)
{
	return FromString(Name.ToString());
}

FText FText::AsLocalizable_Advanced(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* String)
{
	return FText(MakeShared<FLocalizedTextData>(FTextId{Namespace, Key}, FString(String)));
}

FText FText::AsNumber(int64 Number)
{
	return FText(MakeShared<TNumberTextData<int64>>(Number));
}

FText FText::AsNumber(double Number)
{
	return FText(MakeShared<TNumberTextData<double>>(Number));
}

FText FText::Format(FText Pattern, FFormatNamedArguments Arguments)
{
	return FText(MakeShared<FFormattedTextData>(::MoveTemp(Pattern), ::MoveTemp(Arguments)));
}

FText FText::Format(FText Pattern, FFormatOrderedArguments Arguments)
{
	FFormatNamedArguments Named;
	for (int32 Index = 0; Index < Arguments.Num(); ++Index)
	{
		Named.Add(FString::FromInt(Index), ::MoveTemp(Arguments[Index]));
	}
	return Format(::MoveTemp(Pattern), ::MoveTemp(Named));
}

const FString& FText::ToString() const
{
	return Data->GetDisplayString();
}

bool FText::EqualTo(const FText& Other) const
{
	return Data == Other.Data || ToString().Equals(Other.ToString());
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	const FTextId* Id = Text.Data->GetId();
	return Id ? TOptional<FString>(Id->Namespace) : NullOpt;
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	const FTextId* Id = Text.Data->GetId();
	return Id ? TOptional<FString>(Id->Key) : NullOpt;
}

const FString& FTextInspector::GetSourceString(const FText& Text)
{
	return Text.Data->GetSourceString();
}
