// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/Printers.h"

void PrintTo(const FStringView& View, std::ostream* Stream)
{
	*Stream << '"' << TCHAR_TO_UTF8(View) << '"';
}

void PrintTo(const FString& String, std::ostream* Stream)
{
	PrintTo(FStringView(String), Stream);
}

void PrintTo(const FName& Name, std::ostream* Stream)
{
	*Stream << TCHAR_TO_UTF8(Name.ToString());
}

void PrintTo(const FText& Text, std::ostream* Stream)
{
	PrintTo(Text.ToString(), Stream);
}

void PrintTo(const FVector2D& Vector, std::ostream* Stream)
{
	*Stream << '(' << Vector.X << ", " << Vector.Y << ')';
}

void PrintTo(const FLinearColor& Color, std::ostream* Stream)
{
	*Stream << '(' << Color.R << ", " << Color.G << ", " << Color.B << ", " << Color.A << ')';
}

void PrintTo(const FColor& Color, std::ostream* Stream)
{
	*Stream << '#' << TCHAR_TO_UTF8(Color.ToHex());
}

std::ostream& operator<<(std::ostream& Stream, const FString& String)
{
	return Stream << TCHAR_TO_UTF8(String);
}

std::ostream& operator<<(std::ostream& Stream, const FName& Name)
{
	return Stream << Name.ToString();
}

std::ostream& operator<<(std::ostream& Stream, const FText& Text)
{
	return Stream << Text.ToString();
}

testing::AssertionResult CompareTexts(
	const char* ActualExpression, const char* ExpectedExpression, FStringView Actual, FStringView Expected)
{
	if (Actual.Equals(Expected))
	{
		return testing::AssertionSuccess();
	}
	return testing::AssertionFailure() << ActualExpression << "\n  is       " << testing::PrintToString(Actual) << "\n  expected "
									   << testing::PrintToString(Expected);
}
