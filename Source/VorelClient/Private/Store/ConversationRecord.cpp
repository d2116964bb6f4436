// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

// Qt's headers come before the engine's, whose macros they don't survive.
#include <QUuid>

#include "ConversationRecord.h"

#include "Http/QtText.h"

FString FConversationRecord::MakeId()
{
	return ToFString(QUuid::createUuid().toString(QUuid::WithoutBraces));
}
