// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatReply.h"

#include "Chat/AnswerPieces.h"
#include "Chat/ChatRequest.h"

#include <atomic>
#include <ctime>
#include <nlohmann/json.hpp>
#include <numeric>

using nlohmann::json;

namespace
{
std::string MakeId()
{
	static std::atomic<unsigned> Counter{0};
	return "chatcmpl-guide-" + std::to_string(++Counter);
}

json MakeHead(const std::string& Id, const char* Object)
{
	return {{"id", Id}, {"object", Object}, {"created", std::time(nullptr)}, {"model", GuideModelName}};
}

json MakeUsage(std::size_t PromptPieces, std::size_t AnswerPieces)
{
	return {{"prompt_tokens", PromptPieces}, {"completion_tokens", AnswerPieces}, {"total_tokens", PromptPieces + AnswerPieces}};
}

std::string ToEvent(const json& Data)
{
	return "data: " + Data.dump() + "\n\n";
}
} // namespace

FChatReply::FChatReply(const FChatRequest& Request, const std::string& Answer)
	: Id(MakeId())
	, Pieces(CutIntoPieces(Answer))
	, PromptPieces(Request.PromptPieces)
	, bIncludeUsage(Request.bIncludeUsage)
{
}

std::string FChatReply::MakeWhole() const
{
	json Reply = MakeHead(Id, "chat.completion");
	const json Message = {{"role", "assistant"}, {"content", std::accumulate(Pieces.begin(), Pieces.end(), std::string())}};
	Reply["choices"] = json::array({{{"index", 0}, {"message", Message}, {"finish_reason", "stop"}}});
	Reply["usage"] = MakeUsage(PromptPieces, Pieces.size());
	return Reply.dump();
}

std::vector<std::string> FChatReply::MakeEvents() const
{
	std::vector<std::string> Events;
	Events.push_back(MakeEvent("role", "assistant", false));
	for (const std::string& Piece : Pieces)
	{
		Events.push_back(MakeEvent("content", Piece, false));
	}
	Events.push_back(MakeEvent("", "", true));
	if (bIncludeUsage)
	{
		Events.push_back(MakeUsageEvent());
	}
	Events.push_back("data: [DONE]\n\n");
	return Events;
}

std::string FChatReply::MakeEvent(const std::string& DeltaKey, const std::string& DeltaText, bool bFinished) const
{
	json Delta = json::object();
	if (!bFinished)
	{
		Delta[DeltaKey] = DeltaText;
	}
	json Chunk = MakeHead(Id, "chat.completion.chunk");
	Chunk["choices"] = json::array({{{"index", 0}, {"delta", Delta}, {"finish_reason", bFinished ? json("stop") : json(nullptr)}}});
	return ToEvent(Chunk);
}

std::string FChatReply::MakeUsageEvent() const
{
	json Chunk = MakeHead(Id, "chat.completion.chunk");
	Chunk["choices"] = json::array();
	Chunk["usage"] = MakeUsage(PromptPieces, Pieces.size());
	return ToEvent(Chunk);
}

std::string MakeModelList()
{
	const json Model = {{"id", GuideModelName}, {"object", "model"}, {"created", 0}, {"owned_by", "vorel"}};
	return json({{"object", "list"}, {"data", json::array({Model})}}).dump();
}
