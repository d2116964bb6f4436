// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>

namespace httplib
{
struct Request;
struct Response;
} // namespace httplib

void SendJson(httplib::Response& Response, int Status, const std::string& Body);
void SendPage(httplib::Response& Response, int Status, const std::string& Html);

// With status 303, so that the browser fetches the target and does not send the form again.
void SendElsewhere(httplib::Response& Response, const std::string& Location);

// A page for a browser that asked for one, else an error of the chat protocol.
void Refuse(const httplib::Request& Request, httplib::Response& Response, int Status, const std::string& Sentence);
