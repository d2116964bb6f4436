// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "PluginDescriptor.h"
#include "Containers/StringConv.h"
#include "Misc/FileHelper.h"

#include <nlohmann/json.hpp>

using FJson = nlohmann::json;

static FString ToFString(const std::string& Text)
{
	return FString(FUTF8ToTCHAR(Text.data(), static_cast<int32>(Text.size())));
}

// Throws, with the field's name, where the field is no text. Optional fields are empty where they are missing.
static FString ReadText(const FJson& Object, const ANSICHAR* Field, bool bRequired = false)
{
	const auto Found = Object.find(Field);
	if (Found == Object.end() && !bRequired)
	{
		return FString();
	}
	if (Found == Object.end() || !Found->is_string())
	{
		throw std::runtime_error(std::string("\"") + Field + "\" must be a text");
	}
	return ToFString(Found->get<std::string>());
}

static TArray<FModuleDescriptor> ReadModules(const FJson& Object)
{
	TArray<FModuleDescriptor> Modules;
	const auto Found = Object.find("Modules");
	if (Found == Object.end())
	{
		return Modules;
	}
	if (!Found->is_array())
	{
		throw std::runtime_error("\"Modules\" must be a list");
	}
	for (const FJson& Entry : *Found)
	{
		if (!Entry.is_object())
		{
			throw std::runtime_error("each entry of \"Modules\" must be an object");
		}
		Modules.Add({FName(ReadText(Entry, "Name", true)), ReadText(Entry, "Type"), ReadText(Entry, "LoadingPhase")});
	}
	return Modules;
}

bool ReadPluginDescriptor(const FString& FileName, FPluginDescriptor& OutDescriptor, FString& OutError)
{
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *FileName))
	{
		OutError = TEXT("the file can't be read");
		return false;
	}
	try
	{
		const FJson Object = FJson::parse(TCHAR_TO_UTF8(Text));
		if (!Object.is_object())
		{
			throw std::runtime_error("the file must hold an object");
		}
		OutDescriptor = {
			ReadText(Object, "FriendlyName"), ReadText(Object, "VersionName"), ReadText(Object, "Description"), ReadModules(Object)};
		return true;
	}
	catch (const std::exception& Exception)
	{
		OutError = ToFString(Exception.what());
		return false;
	}
}
