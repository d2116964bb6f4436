// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "OpenApi/OpenApiText.h"

const char* const OpenApiChatPaths = R"json({
	"/v1/models": {
		"get": {
			"operationId": "listModels", "tags": ["Chat"], "summary": "The models that there are", "security": [{"account": []}],
			"responses": {
				"200": {"description": "A list of one.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/Models"}}}},
				"401": {"$ref": "#/components/responses/Unauthorized"}
			}
		}
	},
	"/v1/chat/completions": {
		"post": {
			"operationId": "answer", "tags": ["Chat"], "summary": "Answer a conversation", "security": [{"account": []}],
			"description": "Takes one credit when the answer begins, but for `metadata.vorel_mode` being `chat`. A request that is refused takes none.",
			"requestBody": {
				"required": true,
				"content": {"application/json": {"schema": {"$ref": "#/components/schemas/ChatRequest"}}}
			},
			"responses": {
				"200": {
					"description": "The answer, whole or as a stream of events. The stream's last event is `[DONE]`; without it the answer is not complete.",
					"content": {
						"application/json": {"schema": {"$ref": "#/components/schemas/ChatReply"}},
						"text/event-stream": {"schema": {"type": "string"}, "example": "data: {\"id\":\"1\",\"object\":\"chat.completion.chunk\",\"created\":0,\"model\":\"vorel-guide\",\"choices\":[{\"index\":0,\"delta\":{\"content\":\"Use\"},\"finish_reason\":null}]}\n\ndata: [DONE]\n\n"}
					}
				},
				"400": {"$ref": "#/components/responses/BadRequest"},
				"401": {"$ref": "#/components/responses/Unauthorized"},
				"402": {"description": "No credits are left. The error's code is `insufficient_credits`.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/Error"}}}},
				"413": {"description": "The request is too large.", "content": {"application/json": {"schema": {"$ref": "#/components/schemas/Error"}}}}
			}
		}
	},
	"/openapi.json": {
		"get": {
			"operationId": "getDescription", "tags": ["Chat"], "summary": "This description", "security": [],
			"responses": {
				"200": {"description": "OpenAPI 3.1.", "content": {"application/json": {"schema": {"type": "object"}}}}
			}
		}
	}
})json";
