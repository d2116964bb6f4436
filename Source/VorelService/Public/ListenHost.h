// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

// Of a host to listen at, IPv6 without brackets. A name other than "localhost" is not looked up, and is neither.

// Whether only programs on this machine reach what listens there.
bool IsLoopbackHost(const std::string& Host);

// Whether it stands for all addresses of the machine.
bool IsWildcardHost(const std::string& Host);
