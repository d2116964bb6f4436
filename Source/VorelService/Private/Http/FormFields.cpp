// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/FormFields.h"

std::string GetField(const httplib::Params& Fields, const char* Name)
{
	const auto Found = Fields.find(Name);
	return Found == Fields.end() ? std::string() : Found->second;
}

bool HasRepeatedField(const httplib::Params& Fields)
{
	for (auto Field = Fields.begin(); Field != Fields.end(); ++Field)
	{
		if (Fields.count(Field->first) > 1)
		{
			return true;
		}
	}
	return false;
}

bool IsForm(const httplib::Request& Request)
{
	return Request.get_header_value("Content-Type").starts_with("application/x-www-form-urlencoded") &&
		   Request.target.find('?') == std::string::npos;
}

std::string EncodeQueryValue(const std::string& Value)
{
	constexpr const char* Unreserved = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
	constexpr const char* HexDigits = "0123456789ABCDEF";
	std::string Encoded;
	for (const char Character : Value)
	{
		if (std::string_view(Unreserved).find(Character) != std::string_view::npos)
		{
			Encoded += Character;
			continue;
		}
		const auto Byte = static_cast<unsigned char>(Character);
		Encoded += {'%', HexDigits[Byte >> 4], HexDigits[Byte & 0xF]};
	}
	return Encoded;
}
