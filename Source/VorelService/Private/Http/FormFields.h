// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <httplib.h>
#include <string>

// Empty where the field is missing.
std::string GetField(const httplib::Params& Fields, const char* Name);

// What is there twice may mean one thing to us and another to a proxy.
bool HasRepeatedField(const httplib::Params& Fields);

// Whether the fields of the request are those of a form in its body, and none of them came in the address.
bool IsForm(const httplib::Request& Request);

// For the query of an address.
std::string EncodeQueryValue(const std::string& Value);
