// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OpenApi/OpenApi.h"

#include "OpenApi/OpenApiText.h"

#include <nlohmann/json.hpp>

using json = nlohmann::ordered_json;

namespace
{
json MakeSecuritySchemes(const std::string& Address)
{
	const bool bSecure = Address.starts_with("https://");
	const json Flow = {{"authorizationUrl", Address + "/login"}, {"tokenUrl", Address + "/oauth/token"},
		{"refreshUrl", Address + "/oauth/token"}, {"scopes", json::object()}};
	return {{"account", {{"type", "oauth2"},
							{"description",
								"Authorization code for native programs, with PKCE (S256). The one client is the public `vorel-editor`."},
							{"flows", {{"authorizationCode", Flow}}}}},
		{"browserSession", {{"type", "apiKey"}, {"in", "cookie"}, {"name", bSecure ? "__Host-vorel_session" : "vorel_session"},
							   {"description", "Set by signing in at `/login` without parameters, where accounts have passwords."}}}};
}

json MakePaths()
{
	json Paths = json::parse(OpenApiAccountPaths);
	Paths.update(json::parse(OpenApiChatPaths));
	Paths.update(json::parse(OpenApiPagePaths));
	for (json& Path : Paths)
	{
		for (json& Operation : Path)
		{
			Operation["responses"]["403"] = {{"$ref", "#/components/responses/Forbidden"}};
			Operation["responses"]["default"] = {{"$ref", "#/components/responses/Failed"}};
		}
	}
	return Paths;
}
} // namespace

std::string MakeOpenApi(const std::string& Address)
{
	const json Components = {{"securitySchemes", MakeSecuritySchemes(Address)}, {"schemas", json::parse(OpenApiSchemas)},
		{"responses", json::parse(OpenApiResponses)}};
	const json Description = {{"openapi", "3.1.0"},
		{"info", {{"title", "Vorel AI service"}, {"version", "1.0.0"},
					 {"summary", "Sign-in, credits and chat completions for the Vorel AI plugin."},
					 {"license", {{"name", "MIT"}, {"identifier", "MIT"}}}}},
		{"servers", json::array({{{"url", Address}}})},
		{"tags", json::array({{{"name", "Account"}, {"description", "Signing in, and what is known of the user."}},
					 {{"name", "Chat"}, {"description", "Streaming chat completions, answered from the built-in guide."}},
					 {{"name", "Pages"}, {"description", "What people see in a browser."}}})},
		{"paths", MakePaths()}, {"components", Components}};
	return Description.dump(2);
}
