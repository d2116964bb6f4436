// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <nlohmann/json.hpp>
#include <string_view>

using FJson = nlohmann::json;

// Discarded, not thrown, for what is no JSON.
inline FJson ParseJson(std::string_view Text)
{
	return FJson::parse(Text, nullptr, false);
}

inline bool IsJson(std::string_view Text)
{
	return FJson::accept(Text);
}

// Null where the value is no object or has no such member.
inline const FJson& GetMember(const FJson& Value, const char* Key)
{
	static const FJson Null;
	const auto Found = Value.is_object() ? Value.find(Key) : Value.end();
	return Value.is_object() && Found != Value.end() ? *Found : Null;
}

inline FString FromUtf8(std::string_view Bytes)
{
	return FString(FStringView(FUTF8ToTCHAR(Bytes.data(), static_cast<int32>(Bytes.size()))));
}

// Empty for what is no text.
inline FString ToString(const FJson& Value)
{
	return Value.is_string() ? FromUtf8(Value.get_ref<const std::string&>()) : FString();
}

inline std::string ToUtf8(const FString& Text)
{
	const FTCHARToUTF8 Bytes(Text);
	return std::string(Bytes.Get(), static_cast<std::size_t>(Bytes.Length()));
}
