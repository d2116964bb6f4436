// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkupWriter.h"

#include "MarkdownSource.h"

namespace
{
// Collects UTF-16 units on the stack and hands them over in pieces.
class FUnitBuffer
{
public:
	explicit FUnitBuffer(FString& InOut)
		: Out(InOut)
	{
	}

	~FUnitBuffer() { Flush(); }

	void Add(TCHAR Unit)
	{
		if (Count == Capacity)
		{
			Flush();
		}
		Units[Count++] = Unit;
	}

	void Add(FStringView Text)
	{
		for (TCHAR Unit : Text)
		{
			Add(Unit);
		}
	}

	void AddCodePoint(char32_t CodePoint)
	{
		if (CodePoint > 0xFFFF)
		{
			Add(static_cast<TCHAR>(0xD7C0 + (CodePoint >> 10)));
			CodePoint = 0xDC00 + (CodePoint & 0x3FF);
		}
		Add(static_cast<TCHAR>(CodePoint));
	}

private:
	static constexpr int32 Capacity = 512;

	void Flush()
	{
		Out.Append(FStringView(Units, Count));
		Count = 0;
	}

	FString& Out;
	int32 Count = 0;
	TCHAR Units[Capacity];
};

void AddEscaped(FUnitBuffer& Buffer, char Byte)
{
	switch (Byte)
	{
	case '&':
		return Buffer.Add(TEXTVIEW("&amp;"));
	case '<':
		return Buffer.Add(TEXTVIEW("&lt;"));
	case '>':
		return Buffer.Add(TEXTVIEW("&gt;"));
	case '"':
		return Buffer.Add(TEXTVIEW("&quot;"));
	case '\t':
	case '\n':
		return Buffer.Add(TEXT(' '));
	default:
		return Buffer.Add(static_cast<TCHAR>(Byte));
	}
}

char32_t ReadCodePoint(std::string_view Utf8, size_t& Position)
{
	const auto Lead = static_cast<uint8>(Utf8[Position]);
	const size_t Size = Lead < 0xE0 ? 2 : Lead < 0xF0 ? 3 : 4;
	check(Lead >= 0xC0 && Position + Size <= Utf8.size());
	char32_t CodePoint = Lead & (0xFFu >> (Size + 1));
	for (size_t Index = 1; Index < Size; ++Index)
	{
		CodePoint = CodePoint << 6 | (static_cast<uint8>(Utf8[Position + Index]) & 0x3F);
	}
	Position += Size;
	return CodePoint;
}

// Calls AddAscii(buffer, position) for each byte below 128 but the guard mark, and adds all else as it is.
template <typename AddAsciiType>
void AddText(FString& Out, std::string_view Utf8, AddAsciiType AddAscii)
{
	FUnitBuffer Buffer(Out);
	for (size_t Position = 0; Position < Utf8.size();)
	{
		if (static_cast<uint8>(Utf8[Position]) >= 0x80)
		{
			const char32_t CodePoint = ReadCodePoint(Utf8, Position);
			Buffer.AddCodePoint(FMarkdownSource::Unveil(CodePoint));
			continue;
		}
		if (Utf8[Position] != FMarkdownSource::GuardMark)
		{
			AddAscii(Buffer, Position);
		}
		++Position;
	}
}

constexpr FStringView CloseTag = TEXTVIEW("</>");
} // namespace

void FMarkupWriter::Text(const FMarkupStyle& Style, std::string_view Utf8)
{
	if (!Utf8.empty())
	{
		BeginRun(Style);
		AddText(Out, Utf8, [Utf8](FUnitBuffer& Buffer, size_t Position) { AddEscaped(Buffer, Utf8[Position]); });
	}
}

void FMarkupWriter::EndCells(const FMarkupStyle& Style, int32 Count)
{
	BeginRun(Style);
	for (; Count > 0; --Count)
	{
		Out += TEXT('\t');
	}
}

void FMarkupWriter::BeginRun(const FMarkupStyle& Style)
{
	if (OpenRun != Style)
	{
		EndRun();
		Out += TEXT('<');
		Style.AppendNameTo(Out);
		Out += TEXT('>');
		OpenRun = Style;
	}
}

void FMarkupWriter::EndRun()
{
	if (OpenRun)
	{
		Out += CloseTag;
		OpenRun.Reset();
	}
}

void FMarkupWriter::EndLine()
{
	EndRun();
	Out += TEXT('\n');
}

void FMarkupWriter::BeginCode()
{
	EndRun();
	Out += TEXTVIEW("<code>");
}

void FMarkupWriter::CodeText(std::string_view Utf8)
{
	AddText(Out, Utf8,
		[Utf8](FUnitBuffer& Buffer, size_t& Position)
		{
			if (Utf8[Position] == '&')
			{
				Buffer.Add(TEXTVIEW("&amp;"));
			}
			else if (Utf8.substr(Position, 3) == "</>")
			{
				Buffer.Add(TEXTVIEW("&lt;/&gt;"));
				Position += 2;
			}
			else
			{
				Buffer.Add(static_cast<TCHAR>(Utf8[Position]));
			}
		});
}

void FMarkupWriter::CodeNewline()
{
	Out += TEXTVIEW("__NL__");
}

void FMarkupWriter::EndCode()
{
	Out += CloseTag;
}

FString FMarkupWriter::Finish()
{
	EndRun();
	return MoveTemp(Out);
}
