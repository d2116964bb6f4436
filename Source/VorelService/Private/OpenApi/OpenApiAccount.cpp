// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OpenApi/OpenApiText.h"

const char* const OpenApiAccountPaths = R"json({
	"/.well-known/oauth-authorization-server": {
		"get": {
			"operationId": "getMetadata", "tags": ["Account"], "summary": "Metadata of the authorization server", "security": [],
			"responses": {
				"200": {"description": "Endpoints and abilities.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/Metadata"}}}}
			}
		}
	},
	"/oauth/token": {
		"post": {
			"operationId": "getTokens", "tags": ["Account"], "summary": "Exchange a code or a refresh token for tokens", "security": [],
			"description": "A code is good once, for 60 seconds, with the redirect address and the verifier that it was asked with; using it again revokes what it gave. A refresh token is replaced by the new one, and stays good for 60 seconds after the first use of it, or of another one of the login that is as new or newer; used later it revokes the login.",
			"requestBody": {
				"required": true,
				"content": {"application/x-www-form-urlencoded": {"schema": {"oneOf": [{"$ref": "#/components/schemas/CodeGrant"}, {"$ref": "#/components/schemas/RefreshGrant"}]}}}
			},
			"responses": {
				"200": {"description": "Tokens.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/Tokens"}}}},
				"400": {"description": "What was sent is refused.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/OAuthError"}}}}
			}
		}
	},
	"/oauth/revoke": {
		"post": {
			"operationId": "revokeTokens", "tags": ["Account"], "summary": "End a login", "security": [],
			"description": "Revokes all tokens of the login that the token belongs to.",
			"requestBody": {
				"required": true,
				"content": {"application/x-www-form-urlencoded": {"schema": {"$ref": "#/components/schemas/Revocation"}}}
			},
			"responses": {
				"200": {"description": "The token is good no more, if it ever was."}
			}
		}
	},
	"/v1/user": {
		"get": {
			"operationId": "getUser", "tags": ["Account"], "summary": "Who is signed in", "security": [{"account": []}],
			"responses": {
				"200": {"description": "The user.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/User"}}}},
				"401": {"$ref": "#/components/responses/Unauthorized"}
			}
		}
	},
	"/v1/credits": {
		"get": {
			"operationId": "getCredits", "tags": ["Account"], "summary": "How many answers are left", "security": [{"account": []}],
			"responses": {
				"200": {"description": "The credits.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/Credits"}}}},
				"401": {"$ref": "#/components/responses/Unauthorized"}
			}
		}
	},
	"/v1/version": {
		"get": {
			"operationId": "getVersion", "tags": ["Account"], "summary": "The newest version of the plugin", "security": [],
			"responses": {
				"200": {"description": "The version.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/Version"}}}}
			}
		}
	}
})json";
