// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "VorelUserSettings.h"

#include "LogVorel.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include <algorithm>
#include <nlohmann/json.hpp>

namespace
{
using FJson = nlohmann::json;

// One known entry: takes the value, or tells that it is not what it must be.
struct FEntry
{
	const ANSICHAR* Name;
	const TCHAR* Expectation;
	TFunction<bool(const FJson& Value, FVorelSettingsValues& OutValues)> Read;
};

FString GetString(const FJson& Value)
{
	return FString(FUTF8ToTCHAR(Value.get_ref<const std::string&>().c_str()));
}

bool IsHttpAddress(const FString& Text)
{
	FString Scheme;
	FString Rest;
	return Text.Split(TEXT("://"), &Scheme, &Rest) && (Scheme == TEXT("http") || Scheme == TEXT("https")) && !Rest.IsEmpty() &&
		   !Rest.StartsWith(TEXT("/")) && !Rest.Contains(TEXT(" "));
}

FEntry MakeAddress(const ANSICHAR* Name, FString FVorelSettingsValues::*Member)
{
	return {Name, TEXT("an address that starts with http:// or https://"),
		[Member](const FJson& Value, FVorelSettingsValues& OutValues)
		{
			if (!Value.is_string() || !IsHttpAddress(GetString(Value)))
			{
				return false;
			}
			FString Address = GetString(Value);
			while (Address.RemoveFromEnd(TEXT("/")))
			{
			}
			OutValues.*Member = Address;
			return true;
		}};
}

FEntry MakeText(const ANSICHAR* Name, FString FVorelSettingsValues::*Member)
{
	return {Name, TEXT("a text"),
		[Member](const FJson& Value, FVorelSettingsValues& OutValues)
		{
			if (!Value.is_string())
			{
				return false;
			}
			OutValues.*Member = GetString(Value);
			return true;
		}};
}

FEntry MakeSwitch(const ANSICHAR* Name, bool FVorelSettingsValues::*Member)
{
	return {Name, TEXT("true or false"),
		[Member](const FJson& Value, FVorelSettingsValues& OutValues)
		{
			OutValues.*Member = Value.is_boolean() && Value.get<bool>();
			return Value.is_boolean();
		}};
}

FEntry MakeSeconds(const ANSICHAR* Name, double FVorelSettingsValues::*Member)
{
	return {Name, TEXT("a number of seconds above 0 and up to 3600"),
		[Member](const FJson& Value, FVorelSettingsValues& OutValues)
		{
			if (!Value.is_number() || !(Value.get<double>() > 0.0) || Value.get<double>() > 3600.0)
			{
				return false;
			}
			OutValues.*Member = Value.get<double>();
			return true;
		}};
}

const TArray<FEntry>& GetEntries()
{
	static const TArray<FEntry> Entries = {MakeAddress("appUrl", &FVorelSettingsValues::AppUrl),
		MakeAddress("assistantUrl", &FVorelSettingsValues::AssistantUrl), MakeText("assistantModel", &FVorelSettingsValues::AssistantModel),
		MakeSwitch("allowTokenFile", &FVorelSettingsValues::bAllowTokenFile),
		MakeSeconds("connectTimeoutSeconds", &FVorelSettingsValues::ConnectTimeoutSeconds),
		MakeSeconds("firstByteTimeoutSeconds", &FVorelSettingsValues::FirstByteTimeoutSeconds),
		MakeSeconds("idleTimeoutSeconds", &FVorelSettingsValues::IdleTimeoutSeconds)};
	return Entries;
}

void ReadEntry(const FString& File, const std::string& Name, const FJson& Value, FVorelSettingsValues& OutValues)
{
	const FString ShownName(FUTF8ToTCHAR(Name.c_str()));
	const FEntry* Entry = GetEntries().FindByPredicate([&Name](const FEntry& Known) { return Name == Known.Name; });
	if (!Entry)
	{
		UE_LOG(LogVorel, Warning, TEXT("%s: the entry \"%s\" is unknown and ignored"), *File, *ShownName);
	}
	else if (!Entry->Read(Value, OutValues))
	{
		UE_LOG(LogVorel, Warning, TEXT("%s: \"%s\" is ignored, it must be %s"), *File, *ShownName, Entry->Expectation);
	}
}

void ReadEntries(const FString& File, const std::string& Text, FVorelSettingsValues& OutValues)
{
	try
	{
		const FJson Root = FJson::parse(Text);
		if (!Root.is_object())
		{
			UE_LOG(LogVorel, Warning, TEXT("%s: the file is ignored, it must hold one JSON object"), *File);
			return;
		}
		for (const auto& [Name, Value] : Root.items())
		{
			ReadEntry(File, Name, Value, OutValues);
		}
	}
	catch (const FJson::parse_error& Error)
	{
		const auto Position = static_cast<std::ptrdiff_t>(std::min(Error.byte, Text.size()));
		const auto Line = static_cast<int32>(1 + std::count(Text.begin(), Text.begin() + Position, '\n'));
		UE_LOG(LogVorel, Warning, TEXT("%s:%d: the file is ignored, it is not JSON from here on"), *File, Line);
	}
	catch (const FJson::out_of_range&)
	{
		UE_LOG(LogVorel, Warning, TEXT("%s: the file is ignored, it holds a number that is too large"), *File);
	}
}
} // namespace

TObjectPtr<UVorelSettings> UVorelSettings::Get()
{
	return UVorelUserSettings::Get();
}

TObjectPtr<UVorelUserSettings> UVorelUserSettings::Get()
{
	static const TObjectPtr<UVorelUserSettings> Settings = []
	{
		UVorelUserSettings* Made = NewObject<UVorelUserSettings>();
		Made->AddToRoot();
		return Made;
	}();
	return Settings;
}

void UVorelUserSettings::Load(const FString& File)
{
	Values = FVorelSettingsValues();
	if (!FPaths::FileExists(File))
	{
		return;
	}
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *File))
	{
		UE_LOG(LogVorel, Warning, TEXT("%s: the file can't be read"), *File);
		return;
	}
	ReadEntries(File, TCHAR_TO_UTF8(*Text), Values);
}
