// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class QNetworkAccessManager;

// The connections of one client; past the proxy for this machine's own addresses.
TUniquePtr<QNetworkAccessManager> MakeNetwork();
