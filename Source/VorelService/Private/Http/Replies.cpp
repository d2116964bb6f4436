// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Http/Replies.h"

#include "Pages/Pages.h"

#include <httplib.h>
#include <nlohmann/json.hpp>

using nlohmann::json;

void SendJson(httplib::Response& Response, int Status, const std::string& Body)
{
	Response.status = Status;
	Response.set_content(Body, "application/json");
}

void SendPage(httplib::Response& Response, int Status, const std::string& Html, const std::string& FormTarget)
{
	Response.status = Status;
	Response.set_header("Content-Security-Policy", MakePageSecurityPolicy(FormTarget));
	Response.set_content(Html, "text/html; charset=utf-8");
}

void SendElsewhere(httplib::Response& Response, const std::string& Location)
{
	Response.status = 303;
	Response.set_header("Location", Location);
}

void SendApiError(httplib::Response& Response, int Status, const std::string& Message, const std::string& Type, const std::string& Code)
{
	const json Error = {{"message", Message}, {"type", Type}, {"param", nullptr}, {"code", Code.empty() ? json() : json(Code)}};
	SendJson(Response, Status, json({{"error", Error}}).dump());
}

void SendOAuthError(httplib::Response& Response, int Status, const std::string& Error, const std::string& Description)
{
	SendJson(Response, Status, json({{"error", Error}, {"error_description", Description}}).dump());
}

void Refuse(const httplib::Request& Request, httplib::Response& Response, int Status, const std::string& Sentence)
{
	if (Request.get_header_value("Accept").find("text/html") != std::string::npos)
	{
		SendPage(Response, Status, MakeErrorPage("That did not work", Sentence));
	}
	else if (Request.path.starts_with("/oauth/"))
	{
		SendOAuthError(Response, Status,
			Status < 500    ? "invalid_request"
			: Status == 503 ? "temporarily_unavailable"
							: "server_error",
			Sentence);
	}
	else
	{
		SendApiError(Response, Status, Sentence, Status < 500 ? "invalid_request_error" : "server_error", "");
	}
}
