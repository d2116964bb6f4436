// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatRequest.h"

#include "Chat/AnswerPieces.h"

#include <nlohmann/json.hpp>

using nlohmann::json;

namespace
{
// Copying and reading a value takes stack for each level.
constexpr int MaxDepth = 64;

struct FTooDeep
{
};

json Parse(const std::string& Body)
{
	const auto RefuseDepth = [](int Depth, json::parse_event_t, json&)
	{
		return Depth <= MaxDepth ? true : throw FTooDeep();
	};
	return json::parse(Body, RefuseDepth, false);
}

// A content is a string, or a list of parts of which those of type "text" count.
bool ReadContent(const json& Content, std::string& OutText)
{
	if (Content.is_string())
	{
		OutText = Content.get<std::string>();
		return true;
	}
	if (!Content.is_array())
	{
		return false;
	}
	for (const json& Part : Content)
	{
		if (Part.is_object() && Part.contains("text") && Part["text"].is_string())
		{
			OutText += Part["text"].get<std::string>();
		}
	}
	return true;
}

bool ReadMessages(const json& Messages, FChatRequest& OutRequest, std::string& OutError)
{
	for (const json& Message : Messages)
	{
		std::string Text;
		if (!Message.is_object() || !Message.contains("role") || !Message["role"].is_string() || !Message.contains("content") ||
			!ReadContent(Message["content"], Text))
		{
			OutError = "Each message needs a \"role\" and a \"content\".";
			return false;
		}
		OutRequest.PromptPieces += CutIntoPieces(Text).size();
		if (Message["role"] == "user")
		{
			OutRequest.Questions.push_back(std::move(Text));
		}
	}
	if (OutRequest.Questions.empty())
	{
		OutError = "\"messages\" holds no message of the role \"user\".";
		return false;
	}
	return true;
}

bool IsTrue(const json& Object, const char* Key)
{
	return Object.is_object() && Object.contains(Key) && Object[Key].is_boolean() && Object[Key].get<bool>();
}

// "metadata" is there for what only one service understands.
bool IsChatMode(const json& Root)
{
	const auto Metadata = Root.find("metadata");
	return Metadata != Root.end() && Metadata->is_object() && Metadata->contains("vorel_mode") && (*Metadata)["vorel_mode"] == "chat";
}
} // namespace

bool ParseChatRequest(const std::string& Body, FChatRequest& OutRequest, std::string& OutError)
try
{
	const json Root = Parse(Body);
	if (!Root.is_object())
	{
		OutError = "The request body is not a JSON object.";
		return false;
	}
	if (!Root.contains("messages") || !Root["messages"].is_array() || Root["messages"].empty())
	{
		OutError = "\"messages\" is missing or empty.";
		return false;
	}
	OutRequest.bStream = IsTrue(Root, "stream");
	OutRequest.bIncludeUsage = Root.contains("stream_options") && IsTrue(Root["stream_options"], "include_usage");
	OutRequest.bCostsCredit = !IsChatMode(Root);
	return ReadMessages(Root["messages"], OutRequest, OutError);
}
catch (const FTooDeep&)
{
	OutError = "The request body is nested too deeply.";
	return false;
}
