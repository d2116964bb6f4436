// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class QNetworkAccessManager;
class QObject;

// With the system's proxy, but past it for this machine's own addresses.
QNetworkAccessManager* MakeNetwork(QObject* Parent);
