// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

namespace httplib
{
struct Request;
struct Response;
} // namespace httplib

struct FServiceParts;

// The sign-in page. A program opens it in the browser and gets a code by a redirect; without a program the browser itself is signed in.
void ShowLogin(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);
void TakeLogin(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response);
