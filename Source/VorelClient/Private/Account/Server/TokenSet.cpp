// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Server/TokenSet.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace
{
constexpr std::size_t MaxTokenLength = 16 * 1024;
constexpr double MaxLifetime = 10.0 * 366.0 * 24.0 * 3600.0;

// Empty for what can't stand in a header.
std::string ReadToken(const FJson& Value)
{
	const std::string Token = Value.is_string() ? Value.get<std::string>() : std::string();
	const bool bPrintable = std::all_of(Token.begin(), Token.end(), [](char Character) { return Character > 0x20 && Character < 0x7F; });
	return bPrintable && Token.size() <= MaxTokenLength ? Token : std::string();
}

double ReadNumber(const FJson& Value)
{
	const double Number = Value.is_number()   ? Value.get<double>()
						  : Value.is_string() ? std::strtod(Value.get_ref<const std::string&>().c_str(), nullptr)
											  : 0.0;
	return std::isfinite(Number) ? Number : 0.0;
}

double ReadLifetime(const FJson& Value)
{
	return std::clamp(ReadNumber(Value), 0.0, MaxLifetime);
}

bool IsBearer(const FJson& Type)
{
	return ToString(Type) == TEXT("Bearer");
}
} // namespace

bool FTokenSet::IsFresh(const FLoginClock& Clock, double Margin) const
{
	return Lifetime <= 0.0 || Clock.Steady() - ReceivedSteady < Lifetime - std::min(Margin, Lifetime / 4.0);
}

TOptional<FTokenSet> FTokenSet::ReadReply(const FJson& Reply, const FLoginClock& Clock)
{
	FTokenSet Tokens;
	Tokens.Access = ReadToken(GetMember(Reply, "access_token"));
	Tokens.Refresh = ReadToken(GetMember(Reply, "refresh_token"));
	Tokens.Lifetime = ReadLifetime(GetMember(Reply, "expires_in"));
	Tokens.ReceivedSteady = Clock.Steady();
	Tokens.ReceivedWall = Clock.Wall();
	return Tokens.Access.empty() || !IsBearer(GetMember(Reply, "token_type")) ? TOptional<FTokenSet>() : Tokens;
}

std::string FTokenSet::Write() const
{
	return FJson{{"access_token", Access}, {"refresh_token", Refresh}, {"expires_in", Lifetime}, {"received_at", ReceivedWall}}.dump();
}

TOptional<FTokenSet> FTokenSet::Read(std::string_view Stored, const FLoginClock& Clock)
{
	const FJson Json = ParseJson(Stored);
	FTokenSet Tokens;
	Tokens.Access = ReadToken(GetMember(Json, "access_token"));
	Tokens.Refresh = ReadToken(GetMember(Json, "refresh_token"));
	Tokens.Lifetime = ReadLifetime(GetMember(Json, "expires_in"));
	Tokens.ReceivedWall = ReadNumber(GetMember(Json, "received_at"));
	Tokens.ReceivedSteady = Clock.Steady() - (Clock.Wall() - Tokens.ReceivedWall);
	return Tokens.Access.empty() ? TOptional<FTokenSet>() : Tokens;
}
