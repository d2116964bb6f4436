// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ListenAddress.h"

#include "Arguments/ReadNumber.h"

TOptional<FListenAddress> FListenAddress::Read(const FString& Text)
{
	constexpr int32 LastPort = 65535;
	int32 Colon = INDEX_NONE;
	if (!Text.FindLastChar(TEXT(':'), Colon))
	{
		return NullOpt;
	}
	FString Host = Text.Left(Colon);
	const TOptional<int32> Port = ReadNumber::Integer(Text.RightChop(Colon + 1));
	const bool bBrackets = Host.RemoveFromStart(TEXT("[")) && Host.RemoveFromEnd(TEXT("]"));
	const bool bHost = !Host.IsEmpty() && Host.Contains(TEXT(":")) == bBrackets;
	return bHost && Port && *Port >= 0 && *Port <= LastPort ? TOptional<FListenAddress>({Host, *Port}) : NullOpt;
}

FString FListenAddress::ToString() const
{
	return FString::Printf(Host.Contains(TEXT(":")) ? TEXT("[%s]:%d") : TEXT("%s:%d"), *Host, Port);
}
