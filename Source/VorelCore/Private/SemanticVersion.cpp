// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "SemanticVersion.h"

namespace
{
bool IsDigit(TCHAR Character)
{
	return Character >= '0' && Character <= '9';
}

bool IsIdentifierCharacter(TCHAR Character)
{
	return IsDigit(Character) || (Character >= 'a' && Character <= 'z') || (Character >= 'A' && Character <= 'Z') || Character == '-';
}

bool ConsistsOf(FStringView Text, bool (*Belongs)(TCHAR))
{
	for (const TCHAR Character : Text)
	{
		if (!Belongs(Character))
		{
			return false;
		}
	}
	return !Text.IsEmpty();
}

bool IsNumeric(const FString& Identifier)
{
	return ConsistsOf(Identifier, &IsDigit);
}

bool HasLeadingZero(const FString& Identifier)
{
	return Identifier.Len() > 1 && Identifier[0] == '0' && IsNumeric(Identifier);
}

// False where one of the identifiers between the dots is none.
bool ReadIdentifiers(const FString& Text, bool bLeadingZeros, TArray<FString>& OutIdentifiers)
{
	Text.ParseIntoArray(OutIdentifiers, TEXT("."), false);
	for (const FString& Identifier : OutIdentifiers)
	{
		if (!ConsistsOf(Identifier, &IsIdentifierCharacter) || (!bLeadingZeros && HasLeadingZero(Identifier)))
		{
			return false;
		}
	}
	return !OutIdentifiers.IsEmpty();
}

// Takes what stands behind the first such mark; unset where there is none.
TOptional<FString> TakeBehind(FString& Text, TCHAR Mark)
{
	int32 Index;
	if (!Text.FindChar(Mark, Index))
	{
		return NullOpt;
	}
	const FString Behind = Text.RightChop(Index + 1);
	Text = Text.Left(Index);
	return Behind;
}

// Of digits without leading zeros.
int32 CompareNumbers(const FString& A, const FString& B)
{
	return A.Len() != B.Len() ? A.Len() - B.Len() : A.Compare(B, ESearchCase::CaseSensitive);
}

int32 CompareIdentifiers(const FString& A, const FString& B)
{
	const bool bNumericA = IsNumeric(A);
	const bool bNumericB = IsNumeric(B);
	if (bNumericA != bNumericB)
	{
		return bNumericA ? -1 : 1;
	}
	return bNumericA ? CompareNumbers(A, B) : A.Compare(B, ESearchCase::CaseSensitive);
}

int32 CompareLists(const TArray<FString>& A, const TArray<FString>& B)
{
	for (int32 Index = 0; Index < FMath::Min(A.Num(), B.Num()); ++Index)
	{
		if (const int32 Order = CompareIdentifiers(A[Index], B[Index]))
		{
			return Order;
		}
	}
	return A.Num() - B.Num();
}
} // namespace

TOptional<FSemanticVersion> FSemanticVersion::Parse(const FString& Text)
{
	FString Rest = Text;
	FSemanticVersion Version;
	const TOptional<FString> Build = TakeBehind(Rest, '+');
	const TOptional<FString> PreRelease = TakeBehind(Rest, '-');
	TArray<FString> BuildIdentifiers;
	const bool bBuild = !Build || ReadIdentifiers(*Build, true, BuildIdentifiers);
	const bool bPreRelease = !PreRelease || ReadIdentifiers(*PreRelease, false, Version.PreRelease);
	const bool bNumbers = ReadIdentifiers(Rest, false, Version.Numbers) && Version.Numbers.Num() == 3 &&
						  !Version.Numbers.ContainsByPredicate([](const FString& Number) { return !IsNumeric(Number); });
	return bBuild && bPreRelease && bNumbers ? TOptional<FSemanticVersion>(Version) : NullOpt;
}

bool FSemanticVersion::IsNewerThan(const FSemanticVersion& Other) const
{
	if (const int32 Order = CompareLists(Numbers, Other.Numbers))
	{
		return Order > 0;
	}
	if (PreRelease.IsEmpty() != Other.PreRelease.IsEmpty())
	{
		return PreRelease.IsEmpty();
	}
	return CompareLists(PreRelease, Other.PreRelease) > 0;
}
