// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OpenApi/OpenApiText.h"

const char* const OpenApiPagePaths = R"json({
	"/": {
		"get": {
			"operationId": "getStartPage", "tags": ["Pages"], "summary": "What this service is", "security": [],
			"responses": {"200": {"$ref": "#/components/responses/Page"}}
		}
	},
	"/login": {
		"get": {
			"operationId": "getLoginPage", "tags": ["Pages"], "summary": "Sign in", "security": [],
			"description": "With parameters, the authorization endpoint for programs. Without any, a page that signs the browser itself in.",
			"parameters": [
				{"name": "response_type", "in": "query", "schema": {"const": "code"}},
				{"name": "client_id", "in": "query", "schema": {"const": "vorel-editor"}},
				{"name": "redirect_uri", "in": "query", "description": "`http://127.0.0.1:PORT/callback` or `http://[::1]:PORT/callback`, with any port.", "schema": {"type": "string"}},
				{"name": "code_challenge", "in": "query", "schema": {"type": "string", "minLength": 43, "maxLength": 43}},
				{"name": "code_challenge_method", "in": "query", "schema": {"const": "S256"}},
				{"name": "state", "in": "query", "description": "Comes back unchanged with the redirect.", "schema": {"type": "string"}}
			],
			"responses": {
				"200": {"$ref": "#/components/responses/Page"},
				"303": {"description": "To the program: the request is refused, and the address holds `error`, `state` and `iss`. Without parameters, where there is but one account, to `/billing`.", "headers": {"Location": {"schema": {"type": "string"}}}},
				"400": {"description": "A page: the client or the redirect address is unknown.", "content": {"text/html": {"schema": {"type": "string"}}}}
			}
		},
		"post": {
			"operationId": "sendLogin", "tags": ["Pages"], "summary": "What the login page's form sends", "security": [],
			"requestBody": {
				"required": true,
				"content": {"application/x-www-form-urlencoded": {"schema": {"$ref": "#/components/schemas/LoginForm"}}}
			},
			"responses": {
				"303": {"description": "To the program, with `code`, `state` and `iss`, or `error=access_denied` in the code's place; or to a page of this service.", "headers": {"Location": {"schema": {"type": "string"}}}},
				"400": {"description": "The page again, with a sentence on what was wrong.", "content": {"text/html": {"schema": {"type": "string"}}}},
				"429": {"$ref": "#/components/responses/TooManyTries"}
			}
		}
	},
	"/logout": {
		"post": {
			"operationId": "endBrowserSession", "tags": ["Pages"], "summary": "Sign the browser out", "security": [{"browserSession": []}],
			"requestBody": {
				"required": true,
				"content": {"application/x-www-form-urlencoded": {"schema": {"$ref": "#/components/schemas/Form"}}}
			},
			"responses": {
				"303": {"description": "To a page of this service.", "headers": {"Location": {"schema": {"type": "string"}}}},
				"400": {"description": "A page: the form is out of date.", "content": {"text/html": {"schema": {"type": "string"}}}}
			}
		}
	},
	"/billing": {
		"get": {
			"operationId": "getBillingPage", "tags": ["Pages"], "summary": "Credits", "security": [{}, {"browserSession": []}],
			"responses": {"200": {"$ref": "#/components/responses/Page"}}
		},
		"post": {
			"operationId": "topUp", "tags": ["Pages"], "summary": "Top up to the daily credits, for nothing", "security": [{}, {"browserSession": []}],
			"requestBody": {
				"required": true,
				"content": {"application/x-www-form-urlencoded": {"schema": {"$ref": "#/components/schemas/Form"}}}
			},
			"responses": {
				"200": {"$ref": "#/components/responses/Page"},
				"400": {"description": "A page: the form is out of date.", "content": {"text/html": {"schema": {"type": "string"}}}}
			}
		}
	},
	"/plugin": {
		"get": {
			"operationId": "getPluginPage", "tags": ["Pages"], "summary": "The newest version, and how to get it", "security": [],
			"responses": {"200": {"$ref": "#/components/responses/Page"}}
		}
	},
	"/tos": {
		"get": {
			"operationId": "getTermsPage", "tags": ["Pages"], "summary": "Terms of use", "security": [],
			"responses": {"200": {"$ref": "#/components/responses/Page"}}
		}
	},
	"/privacy": {
		"get": {
			"operationId": "getPrivacyPage", "tags": ["Pages"], "summary": "What is stored", "security": [],
			"responses": {"200": {"$ref": "#/components/responses/Page"}}
		}
	}
})json";
