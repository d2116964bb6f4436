// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/AnswerPieces.h"

namespace
{
constexpr int MaxCharactersPerPiece = 6;

bool IsBlank(char Byte)
{
	return Byte == ' ' || Byte == '\n' || Byte == '\t';
}

bool IsContinuation(char Byte)
{
	return (static_cast<unsigned char>(Byte) & 0xC0) == 0x80;
}
} // namespace

std::vector<std::string> CutIntoPieces(const std::string& Text)
{
	std::vector<std::string> Pieces;
	int Characters = MaxCharactersPerPiece;
	for (std::size_t Index = 0; Index < Text.size(); ++Index)
	{
		const bool bCharacterStarts = !IsContinuation(Text[Index]);
		const bool bWordEnded = Index > 0 && IsBlank(Text[Index]) && !IsBlank(Text[Index - 1]);
		if (Index == 0 || (bCharacterStarts && (bWordEnded || Characters == MaxCharactersPerPiece)))
		{
			Pieces.emplace_back();
			Characters = 0;
		}
		Pieces.back() += Text[Index];
		Characters += bCharacterStarts ? 1 : 0;
	}
	return Pieces;
}
