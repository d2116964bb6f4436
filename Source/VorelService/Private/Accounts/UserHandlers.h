// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/AccountStore.h"

#include <httplib.h>

struct FServiceParts;

// What a program may know of its user.
void ServeUser(FServiceParts& Parts, const httplib::Request&, httplib::Response& Response, const FAccount& Account);
void ServeCredits(FServiceParts& Parts, const httplib::Request&, httplib::Response& Response, const FAccount& Account);
