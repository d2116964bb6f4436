// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Arguments/ReadNumber.h"

#include <charconv>

template <typename NumberType, typename... FormatTypes>
static TOptional<NumberType> ReadWhole(FStringView Text, FormatTypes... Format)
{
	const FTCHARToUTF8 Bytes(Text);
	const char* const End = Bytes.Get() + Bytes.Length();
	NumberType Number = 0;
	const auto [Last, Error] = std::from_chars(Bytes.Get(), End, Number, Format...);
	return Error == std::errc() && Last == End ? TOptional<NumberType>(Number) : NullOpt;
}

TOptional<double> ReadNumber::Decimal(FStringView Text)
{
	const TOptional<double> Number = ReadWhole<double>(Text, std::chars_format::fixed);
	// The words for infinity and for no number are numbers to the library.
	return Number && std::isfinite(*Number) ? Number : NullOpt;
}

TOptional<int32> ReadNumber::Integer(FStringView Text)
{
	return ReadWhole<int32>(Text);
}
