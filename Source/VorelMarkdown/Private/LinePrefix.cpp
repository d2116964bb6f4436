// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "LinePrefix.h"

#include <algorithm>

size_t SkipBlanksAndQuotes(std::string_view Line, size_t Position)
{
	return std::min(Line.find_first_not_of(" \t>", Position), Line.size());
}

size_t SkipListMarker(std::string_view Line, size_t Position)
{
	constexpr size_t MaxDigits = 9;
	const auto CharacterAt = [Line](size_t Index)
	{
		return Index < Line.size() ? Line[Index] : '\n';
	};
	size_t End = Position;
	while (CharacterAt(End) >= '0' && CharacterAt(End) <= '9' && End - Position < MaxDigits)
	{
		++End;
	}
	const std::string_view Closers = End > Position ? ".)" : "-*+";
	if (Closers.find(CharacterAt(End)) == std::string_view::npos)
	{
		return Position;
	}
	const char Behind = CharacterAt(End + 1);
	const bool bBlankBehind = Behind == ' ' || Behind == '\t' || Behind == '\n';
	return bBlankBehind ? std::min(End + 2, Line.size()) : Position;
}

size_t SkipLinePrefix(std::string_view Line)
{
	size_t Position = SkipBlanksAndQuotes(Line, 0);
	for (size_t Behind; (Behind = SkipListMarker(Line, Position)) != Position;)
	{
		Position = SkipBlanksAndQuotes(Line, Behind);
	}
	return Position;
}
