// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/HttpCall.h"

#include "Http/Form.h"
#include <algorithm>
#include <set>

namespace
{
std::string Decode(std::string_view Part)
{
	QByteArray Bytes(Part.data(), static_cast<qsizetype>(Part.size()));
	Bytes.replace('+', ' ');
	return QByteArray::fromPercentEncoding(Bytes).toStdString();
}

std::string Encode(const std::string& Text)
{
	return QByteArray::fromStdString(Text).toPercentEncoding().toStdString();
}
} // namespace

std::string WriteForm(const FFormFields& Fields)
{
	std::string Text;
	for (const auto& [Name, Value] : Fields)
	{
		Text += (Text.empty() ? "" : "&") + Encode(Name) + "=" + Encode(Value);
	}
	return Text;
}

FFormFields ReadForm(std::string_view Text)
{
	FFormFields Fields;
	while (!Text.empty())
	{
		const std::string_view Field = Text.substr(0, Text.find('&'));
		const std::string_view Name = Field.substr(0, Field.find('='));
		Fields.emplace_back(Decode(Name), Decode(Field.substr(std::min(Field.size(), Name.size() + 1))));
		Text.remove_prefix(std::min(Text.size(), Field.size() + 1));
	}
	return Fields;
}

std::string GetField(const FFormFields& Fields, std::string_view Name)
{
	const auto HasName = [Name](const auto& Field)
	{
		return Field.first == Name;
	};
	const auto Found = std::find_if(Fields.begin(), Fields.end(), HasName);
	return std::count_if(Fields.begin(), Fields.end(), HasName) == 1 ? Found->second : std::string();
}

bool HasRepeatedField(const FFormFields& Fields)
{
	std::set<std::string_view> Names;
	return !std::all_of(Fields.begin(), Fields.end(), [&Names](const auto& Field) { return Names.insert(Field.first).second; });
}

FHttpRequest MakeFormRequest(const std::string& Url, const FFormFields& Fields)
{
	FHttpRequest Request;
	Request.Url = QUrl(QString::fromStdString(Url), QUrl::StrictMode);
	Request.Body = QByteArray::fromStdString(WriteForm(Fields));
	Request.BodyType = "application/x-www-form-urlencoded";
	return Request;
}
