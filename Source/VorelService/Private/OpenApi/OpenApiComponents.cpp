// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OpenApi/OpenApiText.h"

const char* const OpenApiSchemas = R"json({
	"Metadata": {
		"type": "object",
		"required": ["issuer", "authorization_endpoint", "token_endpoint", "revocation_endpoint", "response_types_supported", "code_challenge_methods_supported"],
		"properties": {
			"issuer": {"type": "string", "format": "uri"},
			"authorization_endpoint": {"type": "string", "format": "uri"},
			"token_endpoint": {"type": "string", "format": "uri"},
			"revocation_endpoint": {"type": "string", "format": "uri"},
			"response_types_supported": {"type": "array", "items": {"type": "string"}},
			"response_modes_supported": {"type": "array", "items": {"type": "string"}},
			"grant_types_supported": {"type": "array", "items": {"type": "string"}},
			"code_challenge_methods_supported": {"type": "array", "items": {"type": "string"}},
			"token_endpoint_auth_methods_supported": {"type": "array", "items": {"type": "string"}},
			"revocation_endpoint_auth_methods_supported": {"type": "array", "items": {"type": "string"}},
			"authorization_response_iss_parameter_supported": {"type": "boolean"},
			"service_documentation": {"type": "string", "format": "uri"}
		}
	},
	"CodeGrant": {
		"type": "object",
		"required": ["grant_type", "code", "redirect_uri", "client_id", "code_verifier"],
		"properties": {
			"grant_type": {"const": "authorization_code"},
			"code": {"type": "string"},
			"redirect_uri": {"type": "string"},
			"client_id": {"const": "vorel-editor"},
			"code_verifier": {"type": "string", "minLength": 43, "maxLength": 128}
		}
	},
	"RefreshGrant": {
		"type": "object",
		"required": ["grant_type", "refresh_token", "client_id"],
		"properties": {
			"grant_type": {"const": "refresh_token"},
			"refresh_token": {"type": "string"},
			"client_id": {"const": "vorel-editor"}
		}
	},
	"Tokens": {
		"type": "object",
		"required": ["access_token", "token_type", "expires_in", "refresh_token"],
		"properties": {
			"access_token": {"type": "string"},
			"token_type": {"const": "Bearer"},
			"expires_in": {"type": "integer", "description": "Seconds."},
			"refresh_token": {"type": "string"}
		}
	},
	"Revocation": {
		"type": "object",
		"required": ["token", "client_id"],
		"properties": {
			"token": {"type": "string"},
			"token_type_hint": {"enum": ["access_token", "refresh_token"]},
			"client_id": {"const": "vorel-editor"}
		}
	},
	"OAuthError": {
		"type": "object",
		"required": ["error"],
		"properties": {
			"error": {"enum": ["invalid_request", "invalid_client", "invalid_grant", "unauthorized_client", "unsupported_grant_type", "invalid_scope", "temporarily_unavailable", "server_error"]},
			"error_description": {"type": "string"}
		}
	},
	"LoginForm": {
		"type": "object",
		"description": "The form's hidden fields, with the parameters of the request that opened the page, and these.",
		"required": ["action"],
		"properties": {
			"action": {"enum": ["allow", "cancel"]},
			"name": {"type": "string"},
			"password": {"type": "string", "format": "password"}
		},
		"additionalProperties": {"type": "string"}
	},
	"Form": {
		"type": "object",
		"description": "The hidden fields of the form.",
		"additionalProperties": {"type": "string"}
	},
	"User": {
		"type": "object",
		"required": ["name", "email", "credits", "daily_credits", "roles"],
		"properties": {
			"name": {"type": "string"},
			"email": {"type": "string", "description": "May be empty."},
			"credits": {"type": "integer", "minimum": 0},
			"daily_credits": {"type": "integer", "minimum": 0},
			"roles": {"type": "array", "items": {"type": "string"}}
		}
	},
	"Credits": {
		"type": "object",
		"required": ["credits", "daily_credits", "resets_at"],
		"properties": {
			"credits": {"type": "integer", "minimum": 0},
			"daily_credits": {"type": "integer", "minimum": 0},
			"resets_at": {"type": "string", "format": "date-time", "description": "In UTC."}
		}
	},
	"Version": {
		"type": "object",
		"required": ["version", "download_url"],
		"properties": {
			"version": {"type": "string", "description": "By semantic versioning."},
			"download_url": {"type": "string", "format": "uri"}
		}
	},
	"Models": {
		"type": "object",
		"required": ["object", "data"],
		"properties": {
			"object": {"const": "list"},
			"data": {
				"type": "array",
				"items": {
					"type": "object",
					"required": ["id", "object", "created", "owned_by"],
					"properties": {
						"id": {"type": "string"}, "object": {"const": "model"}, "created": {"type": "integer"}, "owned_by": {"type": "string"}
					}
				}
			}
		}
	},
	"ChatRequest": {
		"type": "object",
		"required": ["messages"],
		"properties": {
			"model": {"type": "string", "description": "Ignored: there is one."},
			"messages": {
				"type": "array", "minItems": 1, "description": "One at least has the role `user`; the last of these is answered.",
				"items": {
					"type": "object",
					"required": ["role", "content"],
					"properties": {
						"role": {"type": "string"},
						"content": {
							"oneOf": [
								{"type": "string"},
								{"type": "array", "items": {"type": "object", "properties": {"type": {"type": "string"}, "text": {"type": "string"}}}}
							]
						}
					}
				}
			},
			"stream": {"type": "boolean", "default": false},
			"stream_options": {"type": "object", "properties": {"include_usage": {"type": "boolean", "default": false}}},
			"metadata": {"type": "object", "properties": {"vorel_mode": {"enum": ["agent", "chat"], "default": "agent"}}}
		}
	},
	"ChatReply": {
		"type": "object",
		"required": ["id", "object", "created", "model", "choices", "usage"],
		"properties": {
			"id": {"type": "string"},
			"object": {"const": "chat.completion"},
			"created": {"type": "integer", "description": "Seconds since 1970."},
			"model": {"type": "string"},
			"choices": {
				"type": "array",
				"items": {
					"type": "object",
					"required": ["index", "message", "finish_reason"],
					"properties": {
						"index": {"type": "integer"},
						"message": {"type": "object", "required": ["role", "content"], "properties": {"role": {"const": "assistant"}, "content": {"type": "string"}}},
						"finish_reason": {"const": "stop"}
					}
				}
			},
			"usage": {
				"type": "object",
				"required": ["prompt_tokens", "completion_tokens", "total_tokens"],
				"properties": {"prompt_tokens": {"type": "integer"}, "completion_tokens": {"type": "integer"}, "total_tokens": {"type": "integer"}}
			}
		}
	},
	"Error": {
		"type": "object",
		"required": ["error"],
		"properties": {
			"error": {
				"type": "object",
				"required": ["message", "type", "code"],
				"properties": {
					"message": {"type": "string", "description": "A sentence for people."},
					"type": {"enum": ["invalid_request_error", "insufficient_quota", "server_error"]},
					"param": {"type": ["string", "null"]},
					"code": {"type": ["string", "null"]}
				}
			}
		}
	}
})json";

const char* const OpenApiResponses = R"json({
	"Page": {"description": "A page.", "content": {"text/html": {"schema": {"type": "string"}}}},
	"BadRequest": {"description": "The request can't be understood.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/Error"}}}},
	"Unauthorized": {
		"description": "There is no access token, or it is good no more. The error's code is `invalid_api_key`.",
		"headers": {"WWW-Authenticate": {"schema": {"type": "string"}, "example": "Bearer error=\"invalid_token\""}},
		"content": {"application/json": {"schema": {"$ref": "#/components/schemas/Error"}}}
	},
	"Forbidden": {"description": "The host or the origin is not the service's own. For a browser, a page.", "content": {"application/json": {"schema": {"oneOf": [{"$ref": "#/components/schemas/Error"}, {"$ref": "#/components/schemas/OAuthError"}]}}, "text/html": {"schema": {"type": "string"}}}},
	"TooManyTries": {
		"description": "The page again: too many tries.",
		"headers": {"Retry-After": {"description": "Seconds.", "schema": {"type": "integer"}}},
		"content": {"text/html": {"schema": {"type": "string"}}}
	},
	"Failed": {"description": "Anything else that is wrong. For a browser, a page.", "content": {"application/json": {"schema": {"oneOf": [{"$ref": "#/components/schemas/Error"}, {"$ref": "#/components/schemas/OAuthError"}]}}, "text/html": {"schema": {"type": "string"}}}}
})json";
