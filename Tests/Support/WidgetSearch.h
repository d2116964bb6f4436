// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"

class SWidget;

/** What FUserDriver says of texts. Collapsed and hidden widgets are passed over. */
TSharedPtr<SWidget> FindWidgetByText(const TSharedRef<SWidget>& Root, const FString& Text);
