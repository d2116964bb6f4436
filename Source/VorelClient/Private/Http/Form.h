// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "CoreMinimal.h"
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct FHttpRequest;

// The fields of a form, or of the query of an address, in UTF-8.
using FFormFields = std::vector<std::pair<std::string, std::string>>;

std::string WriteForm(const FFormFields& Fields);
FFormFields ReadForm(std::string_view Text);

// Empty where the field is missing, or stands there more than once and so says nothing.
std::string GetField(const FFormFields& Fields, std::string_view Name);

bool HasRepeatedField(const FFormFields& Fields);

FHttpRequest MakeFormRequest(const std::string& Url, const FFormFields& Fields);
