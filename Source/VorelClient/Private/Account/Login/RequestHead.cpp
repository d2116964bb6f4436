// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Login/RequestHead.h"

#include <algorithm>

namespace
{
constexpr std::string_view LineEnd = "\r\n";

std::string_view TakeUntil(std::string_view& Text, std::string_view End)
{
	const std::string_view Part = Text.substr(0, Text.find(End));
	Text.remove_prefix(std::min(Text.size(), Part.size() + End.size()));
	return Part;
}

bool IsHostName(std::string_view Name)
{
	constexpr std::string_view Host = "host";
	return std::equal(Name.begin(), Name.end(), Host.begin(), Host.end(), [](char A, char B) { return (A | 0x20) == B; });
}

std::string_view Trim(std::string_view Text)
{
	Text.remove_prefix(std::min(Text.size(), Text.find_first_not_of(" \t")));
	return Text.substr(0, Text.find_last_not_of(" \t") + 1);
}

bool HasControlCharacter(std::string_view Text)
{
	return std::any_of(Text.begin(), Text.end(),
		[](char Character) { return (static_cast<unsigned char>(Character) < 0x20 && Character != '\t') || Character == 0x7F; });
}
} // namespace

TOptional<FRequestHead> FRequestHead::Read(std::string_view Text)
{
	std::string_view RequestLine = TakeUntil(Text, LineEnd);
	if (HasControlCharacter(RequestLine))
	{
		return {};
	}
	FRequestHead Head;
	Head.Method = TakeUntil(RequestLine, " ");
	std::string_view Target = TakeUntil(RequestLine, " ");
	if (Head.Method.empty() || !Target.starts_with('/') || (RequestLine != "HTTP/1.1" && RequestLine != "HTTP/1.0"))
	{
		return {};
	}
	Head.Path = TakeUntil(Target, "?");
	Head.Query = Target;
	int32 Hosts = 0;
	for (std::string_view Line = TakeUntil(Text, LineEnd); !Line.empty(); Line = TakeUntil(Text, LineEnd))
	{
		std::string_view Value = Line;
		const std::string_view Name = TakeUntil(Value, ":");
		if (Name.size() == Line.size() || Name.find_first_of(" \t") != std::string_view::npos || HasControlCharacter(Line))
		{
			return {};
		}
		if (IsHostName(Name))
		{
			Head.Host = Trim(Value);
			++Hosts;
		}
	}
	return Hosts == 1 ? Head : TOptional<FRequestHead>();
}
