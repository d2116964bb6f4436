// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownSource.h"

#include "InlineLimits.h"
#include "LineGuards.h"
#include "TableRepair.h"

namespace
{
bool IsHighSurrogate(char32_t Unit)
{
	return (Unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(char32_t Unit)
{
	return (Unit & 0xFC00) == 0xDC00;
}

// Noncharacters that stand for these.
constexpr char32_t FirstVeil = 0xFDD0;
constexpr std::u32string_view Veiled = U"~[:.";

bool IsVeil(char32_t CodePoint)
{
	return CodePoint >= FirstVeil && CodePoint < FirstVeil + Veiled.size();
}
} // namespace

FMarkdownSource::FMarkdownSource(FStringView Markdown)
{
	Convert(Markdown);
	GuardLineStarts(Bytes);
	RepairTables(Bytes);
}

void FMarkdownSource::Convert(FStringView Markdown)
{
	const TCHAR* At = Markdown.begin();
	const TCHAR* const End = Markdown.end();
	if (At != End && *At == 0xFEFF)
	{
		++At;
	}
	Bytes.reserve(static_cast<size_t>(End - At) + static_cast<size_t>(End - At) / 8);
	FInlineLimits Limits(Markdown);
	Limits.BeginLine(0);
	while (At != End)
	{
		const auto Position = static_cast<int32>(At - Markdown.begin());
		char32_t CodePoint = *At++;
		if (IsHighSurrogate(CodePoint) && At != End && IsLowSurrogate(*At))
		{
			CodePoint = 0x10000 + ((CodePoint & 0x3FF) << 10 | (*At++ & 0x3FF));
		}
		else if (CodePoint == '\r' && At != End && *At == '\n')
		{
			++At;
		}
		CodePoint = Limits.MustBeText(Position) ? FirstVeil + static_cast<char32_t>(Veiled.find(CodePoint)) : Sanitize(CodePoint);
		AppendUtf8(Bytes, CodePoint);
		if (CodePoint == '\n')
		{
			Limits.BeginLine(static_cast<int32>(At - Markdown.begin()));
		}
	}
}

char32_t FMarkdownSource::Sanitize(char32_t CodePoint)
{
	if (CodePoint == '\t' || CodePoint == '\n')
	{
		return CodePoint;
	}
	// Vertical tab, form feed, carriage return, next line, line and paragraph separator: the text layout breaks the line at each of them.
	if ((CodePoint >= 0x0B && CodePoint <= 0x0D) || CodePoint == 0x85 || CodePoint == 0x2028 || CodePoint == 0x2029)
	{
		return '\n';
	}
	const bool bControl = CodePoint < 0x20 || (CodePoint >= 0x7F && CodePoint < 0xA0);
	const bool bLoneSurrogate = CodePoint >= 0xD800 && CodePoint < 0xE000;
	return bControl || bLoneSurrogate || IsVeil(CodePoint) ? ReplacementCharacter : CodePoint;
}

char32_t FMarkdownSource::Unveil(char32_t CodePoint)
{
	return IsVeil(CodePoint) ? Veiled[CodePoint - FirstVeil] : CodePoint;
}

void FMarkdownSource::AppendUtf8(std::string& Out, char32_t CodePoint)
{
	const auto AddTail = [&Out, CodePoint](int Shift)
	{
		Out.push_back(static_cast<char>(0x80 | (CodePoint >> Shift & 0x3F)));
	};
	if (CodePoint < 0x80)
	{
		Out.push_back(static_cast<char>(CodePoint));
	}
	else if (CodePoint < 0x800)
	{
		Out.push_back(static_cast<char>(0xC0 | CodePoint >> 6));
		AddTail(0);
	}
	else if (CodePoint < 0x10000)
	{
		Out.push_back(static_cast<char>(0xE0 | CodePoint >> 12));
		AddTail(6);
		AddTail(0);
	}
	else
	{
		Out.push_back(static_cast<char>(0xF0 | CodePoint >> 18));
		AddTail(12);
		AddTail(6);
		AddTail(0);
	}
}
