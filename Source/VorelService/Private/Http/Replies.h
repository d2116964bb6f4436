// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

namespace httplib
{
struct Request;
struct Response;
} // namespace httplib

void SendJson(httplib::Response& Response, int Status, const std::string& Body);

// FormTarget: where the answer to the page's form may lead, other than to this service.
void SendPage(httplib::Response& Response, int Status, const std::string& Html, const std::string& FormTarget = "");

// With status 303, so that the browser fetches the target and does not send the form again.
void SendElsewhere(httplib::Response& Response, const std::string& Location);

// An error of the chat protocol. Code: for programs; empty where the type says enough.
void SendApiError(httplib::Response& Response, int Status, const std::string& Message, const std::string& Type, const std::string& Code);

// By RFC 6749.
void SendOAuthError(httplib::Response& Response, int Status, const std::string& Error, const std::string& Description);

// A page for a browser that asked for one, else an error of the protocol that is spoken at the address.
void Refuse(const httplib::Request& Request, httplib::Response& Response, int Status, const std::string& Sentence);
