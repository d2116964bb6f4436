// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatHandlers.h"

#include "Chat/ChatReply.h"
#include "Chat/ChatRequest.h"
#include "Guide/GuideAnswer.h"
#include "Http/Replies.h"
#include "ServiceParts.h"

void FChatHandlers::ServeModels(httplib::Response& Response)
{
	SendJson(Response, 200, MakeModelList());
}

void FChatHandlers::ServeCompletion(const httplib::Request& Request, httplib::Response& Response, const FAccount* Account)
{
	FChatRequest Chat;
	std::string Error;
	if (!ParseChatRequest(Request.body, Chat, Error))
	{
		Refuse(Request, Response, 400, Error);
		return;
	}
	const FChatReply Reply(Chat, ComposeGuideAnswer(Guide, Chat.Questions));
	if (Account && Chat.bCostsCredit && !Parts.Credits.Take(Account->Id, Parts.Now()))
	{
		SendJson(Response, 402,
			MakeErrorBody(
				"No credits are left for today. Top up at " + Parts.Address + "/billing.", "insufficient_quota", "insufficient_credits"));
		return;
	}
	if (Chat.bStream)
	{
		Stream(Response, Reply.MakeEvents());
	}
	else
	{
		SendJson(Response, 200, Reply.MakeWhole());
	}
}

void FChatHandlers::Stream(httplib::Response& Response, std::vector<std::string> Events)
{
	const auto Paced = std::make_shared<FPacedStream>(std::move(Events), Parts.Options.PieceInterval, StopSignal);
	Response.set_chunked_content_provider("text/event-stream",
		[Paced](std::size_t, httplib::DataSink& Sink)
		{
			const std::string* const Event = Paced->GetNext();
			// A client that has gone fails the write.
			if (!Event || !Sink.write(Event->data(), Event->size()))
			{
				return false;
			}
			if (Paced->IsFinished())
			{
				Sink.done();
			}
			return true;
		});
}
