// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "VorelSettings.h"

// The entries of settings.json, named as there but for the first letters.
struct FVorelSettingsValues
{
	// Without a slash at the end. Empty: the service's own.
	FString AppUrl;

	// Of a server for streaming chat completions, and the model to ask for there. Empty where nothing was set.
	FString AssistantUrl;
	FString AssistantModel;

	// Where the desktop has no secret store, the tokens of a login may lie in a file that only its owner can read.
	bool bAllowTokenFile = false;

	// How long to wait for a connection, for the first byte of an answer, and for each next one.
	double ConnectTimeoutSeconds = 10.0;
	double FirstByteTimeoutSeconds = 120.0;
	double IdleTimeoutSeconds = 60.0;
};

// The settings that a user may write to a file. It is only read, never written.
class UVorelUserSettings : public UVorelSettings
{
public:
	// The same object as UVorelSettings::Get returns. Holds the defaults until a file is loaded.
	static TObjectPtr<UVorelUserSettings> Get();

	// Takes the values of a JSON file in place of all that were there. An entry that is unknown or wrong, or a file that can't be read, is
	// logged as a warning and left out. A missing file is in order.
	void Load(const FString& File);

	const FVorelSettingsValues& GetValues() const { return Values; }

	FString GetAppUrl() const override { return Values.AppUrl.IsEmpty() ? DefaultAppUrl : Values.AppUrl; }

	// Where the service is that the client uses, once it is known.
	void SetDefaultAppUrl(const FString& Url) { DefaultAppUrl = Url; }

private:
	FVorelSettingsValues Values;
	FString DefaultAppUrl;
};
