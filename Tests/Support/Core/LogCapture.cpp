// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Support/LogCapture.h"
#include "Misc/OutputDeviceRedirector.h"

FLogCapture::FLogCapture()
{
	GLog->AddOutputDevice(this);
}

FLogCapture::~FLogCapture()
{
	GLog->RemoveOutputDevice(this);
}

int32 FLogCapture::Count(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Text) const
{
	return Messages
		.FilterByPredicate([&](const FMessage& Message)
			{ return Message.Category == Category && Message.Verbosity == Verbosity && Message.Text.Equals(Text); })
		.Num();
}

int32 FLogCapture::CountAtLevel(const FName& Category, ELogVerbosity::Type Verbosity) const
{
	return Messages
		.FilterByPredicate([&](const FMessage& Message) { return Message.Category == Category && Message.Verbosity == Verbosity; })
		.Num();
}

FString FLogCapture::Dump() const
{
	FString Lines;
	for (const FMessage& Message : Messages)
	{
		Lines += FString::Printf(TEXT("%s: %s: %s\n"), *Message.Category.ToString(), ToString(Message.Verbosity), *Message.Text);
	}
	return Lines;
}

void FLogCapture::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Messages.Add({Category, Verbosity, V});
}
