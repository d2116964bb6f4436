// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"

#include <algorithm>
#include <cstdio>

namespace
{
// One conversion of a format: "%-08.3f".
struct FConversion
{
	bool bLeft = false;
	bool bZero = false;
	bool bSign = false;
	bool bBlank = false;
	bool bAlternate = false;
	bool bAnsi = false;
	// INDEX_NONE where the format does not say.
	int32 Width = INDEX_NONE;
	int32 Precision = INDEX_NONE;
	TCHAR Kind = 0;
};

// Bounds what one number can ask for in memory.
constexpr int32 MaxNumberWidth = 512;

class FFormatter
{
public:
	FFormatter(const TCHAR* InFormat, FVarArgs InArguments)
		: Format(InFormat)
		, Arguments(InArguments)
		, NextArgument(InArguments.begin())
	{
	}

	FString Run()
	{
		while (*Format)
		{
			const TCHAR* Start = Format;
			while (*Format && *Format != TEXT('%'))
			{
				++Format;
			}
			Result.Append(FStringView(Start, static_cast<int32>(Format - Start)));
			if (*Format == TEXT('%'))
			{
				++Format;
				Convert(ParseConversion());
			}
		}
		return ::MoveTemp(Result);
	}

private:
	FConversion ParseConversion()
	{
		FConversion Conversion;
		while (ParseFlag(Conversion))
		{
			++Format;
		}
		Conversion.Width = ParseNumber();
		if (Conversion.Width < INDEX_NONE)
		{
			Conversion.bLeft = true;
			Conversion.Width = -Conversion.Width;
		}
		if (*Format == TEXT('.'))
		{
			++Format;
			Conversion.Precision = std::max(ParseNumber(), 0);
		}
		while (*Format && FStringView(TEXT("hljztL")).Contains(FStringView(Format, 1), ESearchCase::CaseSensitive))
		{
			Conversion.bAnsi |= *Format == TEXT('h');
			++Format;
		}
		checkf(*Format, TEXT("The format ends inside a conversion"));
		Conversion.Kind = *Format++;
		return Conversion;
	}

	bool ParseFlag(FConversion& Conversion) const
	{
		switch (*Format)
		{
		case TEXT('-'):
			return Conversion.bLeft = true;
		case TEXT('0'):
			return Conversion.bZero = true;
		case TEXT('+'):
			return Conversion.bSign = true;
		case TEXT(' '):
			return Conversion.bBlank = true;
		case TEXT('#'):
			return Conversion.bAlternate = true;
		default:
			return false;
		}
	}

	// Digits, a star for the next argument, or nothing.
	int32 ParseNumber()
	{
		if (*Format == TEXT('*'))
		{
			++Format;
			return static_cast<int32>(TakeArgument().Signed);
		}
		int32 Number = INDEX_NONE;
		while (*Format >= TEXT('0') && *Format <= TEXT('9'))
		{
			Number = std::min(std::max(Number, 0) * 10 + (*Format - TEXT('0')), 1 << 20);
			++Format;
		}
		return Number;
	}

	const FVarArg& TakeArgument()
	{
		checkf(NextArgument != Arguments.end(), TEXT("The format has more conversions than arguments"));
		return *NextArgument++;
	}

	void Convert(const FConversion& Conversion)
	{
		switch (Conversion.Kind)
		{
		case TEXT('%'):
			Result.AppendChar(TEXT('%'));
			break;
		case TEXT('s'):
		case TEXT('S'):
			ConvertString(Conversion, TakeArgument());
			break;
		case TEXT('c'):
			AppendPadded(Conversion, FString::Chr(static_cast<TCHAR>(TakeArgument().Unsigned)));
			break;
		default:
			ConvertNumber(Conversion, TakeArgument());
			break;
		}
	}

	void ConvertString(const FConversion& Conversion, const FVarArg& Argument)
	{
		const bool bAnsi = Argument.Type == FVarArg::EType::AnsiString;
		checkf(bAnsi || Argument.Type == FVarArg::EType::WideString, TEXT("%%s needs a string"));
		checkf(bAnsi == (Conversion.bAnsi || Conversion.Kind == TEXT('S')), TEXT("%%s is for TCHAR strings, %%hs for ANSICHAR strings"));
		const FString Text = bAnsi ? FString(Argument.AnsiString ? Argument.AnsiString : "(null)")
								   : FString(Argument.WideString ? Argument.WideString : TEXT("(null)"));
		AppendPadded(Conversion, Conversion.Precision == INDEX_NONE ? Text : Text.Left(Conversion.Precision));
	}

	void AppendPadded(const FConversion& Conversion, const FString& Text)
	{
		const FString Padding = FString::ChrN(Conversion.Width - Text.Len(), TEXT(' '));
		Result += Conversion.bLeft ? Text + Padding : Padding + Text;
	}

	void ConvertNumber(const FConversion& Conversion, const FVarArg& Argument)
	{
		ANSICHAR Buffer[2 * MaxNumberWidth];
		const std::string Directive = MakeDirective(Conversion, Argument);
		const int32 Width = std::clamp(Conversion.Width, 0, MaxNumberWidth);
		const int32 Precision = std::min(Conversion.Precision, MaxNumberWidth);
		int32 Length = 0;
		switch (Argument.Type)
		{
		case FVarArg::EType::Float:
			Length = std::snprintf(Buffer, sizeof(Buffer), Directive.c_str(), Width, Precision, Argument.Float);
			break;
		case FVarArg::EType::Pointer:
			Length = std::snprintf(Buffer, sizeof(Buffer), Directive.c_str(), Width, Argument.Pointer);
			break;
		default:
			Length = std::snprintf(Buffer, sizeof(Buffer), Directive.c_str(), Width, Precision, Unsigned(Conversion, Argument));
			break;
		}
		check(Length >= 0 && Length < static_cast<int32>(sizeof(Buffer)));
		Result += FUTF8ToTCHAR(Buffer, Length);
	}

	// As many bits as the argument had, so that %x of a negative int32 has eight digits.
	static uint64 Unsigned(const FConversion& Conversion, const FVarArg& Argument)
	{
		const bool bDecimal = Conversion.Kind == TEXT('d') || Conversion.Kind == TEXT('i');
		return bDecimal || Argument.Size == 8 ? Argument.Unsigned : Argument.Unsigned & ((uint64(1) << (8 * Argument.Size)) - 1);
	}

	static std::string MakeDirective(const FConversion& Conversion, const FVarArg& Argument)
	{
		CheckFits(Conversion, Argument);
		std::string Directive = "%";
		Directive += Conversion.bLeft ? "-" : "";
		Directive += Conversion.bZero ? "0" : "";
		Directive += Conversion.bSign ? "+" : "";
		Directive += Conversion.bBlank ? " " : "";
		Directive += Conversion.bAlternate ? "#" : "";
		// A negative precision counts as none.
		Directive += Argument.Type == FVarArg::EType::Pointer ? "*" : "*.*";
		Directive += Argument.Type == FVarArg::EType::Float || Argument.Type == FVarArg::EType::Pointer ? "" : "ll";
		Directive += static_cast<ANSICHAR>(Conversion.Kind);
		return Directive;
	}

	static void CheckFits(const FConversion& Conversion, const FVarArg& Argument)
	{
		const FStringView Kind(&Conversion.Kind, 1);
		const auto IsOneOf = [Kind](const TCHAR* Kinds)
		{
			return FStringView(Kinds).Contains(Kind, ESearchCase::CaseSensitive);
		};
		const bool bInteger = Argument.Type == FVarArg::EType::Signed || Argument.Type == FVarArg::EType::Unsigned;
		const bool bFits = (bInteger && IsOneOf(TEXT("diuxXo"))) || (Argument.Type == FVarArg::EType::Float && IsOneOf(TEXT("fFeEgGaA"))) ||
						   (Argument.Type == FVarArg::EType::Pointer && Conversion.Kind == TEXT('p'));
		checkf(bFits, TEXT("The conversion %%%c does not fit its argument"), Conversion.Kind);
	}

	const TCHAR* Format;
	FVarArgs Arguments;
	const FVarArg* NextArgument;
	FString Result;
};
} // namespace

FString FString::PrintfImpl(const TCHAR* Format, FVarArgs Arguments)
{
	return FFormatter(Format, Arguments).Run();
}
