// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Tokens/LoginMarker.h"

#include "Account/Tokens/PrivateFile.h"
#include "Http/JsonText.h"
#include "Misc/Paths.h"

namespace
{
// {"logins": {account: place}}
constexpr const char* Logins = "logins";

const char* GetName(ETokenPlace Place)
{
	return Place == ETokenPlace::SecretStore ? "secret store" : Place == ETokenPlace::File ? "file" : "signed out";
}

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
	for (const ETokenPlace Place : {ETokenPlace::SecretStore, ETokenPlace::File, ETokenPlace::Left})
	{
		if (Name == FString(GetName(Place)))
		{
			return Place;
		}
	}
	return ETokenPlace::None;
}

bool FLoginMarker::Write(ETokenPlace Place) const
{
	if (File.IsEmpty() || Place == Read())
	{
		return true;
	}
	FJson Known = ReadLogins(File);
	if (Place == ETokenPlace::None)
	{
		Known.erase(ToUtf8(Account));
	}
	else
	{
		Known[ToUtf8(Account)] = GetName(Place);
	}
	PrivateFile::MakeFolder(FPaths::GetPath(File));
	const bool bWritten = PrivateFile::Write(File, FJson{{Logins, Known}}.dump(1, '\t'));
	if (!bWritten)
	{
		PrivateFile::Remove(File);
	}
	return bWritten;
}
