// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

namespace httplib
{
struct Request;
struct Response;
} // namespace httplib

struct FAccount;
struct FServiceParts;

// The chat-completions protocol, answered from the guide. The account pays.
void ServeModels(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response, const FAccount& Account);
void ServeCompletion(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response, const FAccount& Account);
