// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/Replies.h"

#include "Chat/ChatReply.h"
#include "Pages/Pages.h"

#include <httplib.h>

void SendJson(httplib::Response& Response, int Status, const std::string& Body)
{
	Response.status = Status;
	Response.set_content(Body, "application/json");
}

void SendPage(httplib::Response& Response, int Status, const std::string& Html)
{
	Response.status = Status;
	Response.set_header("Content-Security-Policy", GetPageSecurityPolicy());
	Response.set_content(Html, "text/html; charset=utf-8");
}

void SendElsewhere(httplib::Response& Response, const std::string& Location)
{
	Response.status = 303;
	Response.set_header("Location", Location);
}

void Refuse(const httplib::Request& Request, httplib::Response& Response, int Status, const std::string& Sentence)
{
	if (Request.get_header_value("Accept").find("text/html") != std::string::npos)
	{
		SendPage(Response, Status, MakeErrorPage("That did not work", Sentence));
		return;
	}
	SendJson(Response, Status, MakeErrorBody(Sentence, Status < 500 ? "invalid_request_error" : "server_error"));
}
