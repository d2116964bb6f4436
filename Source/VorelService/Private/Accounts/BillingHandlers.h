// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

namespace httplib
{
struct Request;
struct Response;
} // namespace httplib

struct FServiceParts;

// The page of credits, for whoever is signed in in the browser, or for the one local account.
void ShowBilling(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);
void TopUp(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);
void SignOut(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);
