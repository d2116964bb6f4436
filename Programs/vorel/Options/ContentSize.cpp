// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Options/ContentSize.h"

#include "Arguments/ReadNumber.h"

TOptional<FContentSize> FContentSize::Read(FStringView Text)
{
	constexpr int32 LongestSide = 8192;
	int32 Cross = INDEX_NONE;
	if (!Text.FindChar(TEXT('x'), Cross))
	{
		return NullOpt;
	}
	const TOptional<int32> Width = ReadNumber::Integer(Text.Left(Cross));
	const TOptional<int32> Height = ReadNumber::Integer(Text.RightChop(Cross + 1));
	const auto IsSide = [](const TOptional<int32>& Side)
	{
		return Side && *Side >= 1 && *Side <= LongestSide;
	};
	return IsSide(Width) && IsSide(Height) ? TOptional<FContentSize>({*Width, *Height}) : NullOpt;
}
