// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Accounts/AccountStore.h"

#include <httplib.h>

struct FServiceParts;

// Answers one request for the account that its token stands for.
using FAccountHandler = void (*)(
	FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response, const FAccount& Account);

// False: the response says that there is no good bearer token.
bool Admit(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);

// Answers 401 to requests without a good bearer token.
httplib::Server::Handler WithAccount(FServiceParts& Parts, FAccountHandler Handler);
