// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Tokens/LoginMarker.h"

#include "Account/Tokens/PrivateFile.h"
#include "Http/JsonText.h"
#include "Misc/Paths.h"
#include <algorithm>

namespace
{
// {"logins": {account: place}}
constexpr const char* Logins = "logins";

constexpr std::pair<ETokenPlace, const char*> Names[] = {{ETokenPlace::SecretStore, "secret store"}, {ETokenPlace::File, "file"},
	{ETokenPlace::LeftSecretStore, "signed out of the secret store"}, {ETokenPlace::LeftFile, "signed out of the file"}};

FJson ReadLogins(const FString& File)
{
	std::string Text;
	PrivateFile::Read(File, Text);
	const FJson Found = GetMember(ParseJson(Text), Logins);
	return Found.is_object() ? Found : FJson::object();
}
} // namespace

FLoginMarker::FLoginMarker(const FString& DataFolder, const FString& InAccount)
	: File(DataFolder.IsEmpty() ? FString() : DataFolder / TEXT("login.json"))
	, Account(InAccount)
{
}

ETokenPlace FLoginMarker::Read() const
{
	const FString Name = File.IsEmpty() ? FString() : ToString(GetMember(ReadLogins(File), ToUtf8(Account).c_str()));
	const auto* const Found =
		std::find_if(std::begin(Names), std::end(Names), [&Name](const auto& Entry) { return Name == FString(Entry.second); });
	return Found == std::end(Names) ? ETokenPlace::None : Found->first;
}

bool FLoginMarker::Write(ETokenPlace Place) const
{
	if (File.IsEmpty() || Place == Read())
	{
		return true;
	}
	FJson Known = ReadLogins(File);
	Known.erase(ToUtf8(Account));
	for (const auto& [Noted, Name] : Names)
	{
		if (Noted == Place)
		{
			Known[ToUtf8(Account)] = Name;
		}
	}
	PrivateFile::MakeFolder(FPaths::GetPath(File));
	const bool bWritten = PrivateFile::Write(File, FJson{{Logins, Known}}.dump(1, '\t'));
	if (!bWritten)
	{
		PrivateFile::Remove(File);
	}
	return bWritten;
}
