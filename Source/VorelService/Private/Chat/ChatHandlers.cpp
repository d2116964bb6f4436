// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatHandlers.h"

#include "Chat/ChatReply.h"
#include "Chat/ChatRequest.h"
#include "Guide/GuideAnswer.h"
#include "Http/Replies.h"
#include "ServiceParts.h"

#include <httplib.h>

namespace
{
void Stream(FServiceParts& Parts, httplib::Response& Response, std::vector<std::string> Events)
{
	const auto Paced = std::make_shared<FPacedStream>(std::move(Events), Parts.Options.PieceInterval, Parts.StopSignal);
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

void RefuseWithoutCredits(const FServiceParts& Parts, httplib::Response& Response)
{
	const std::string Problem = "No credits are left for today. Top up at " + Parts.Address + "/billing.";
	SendApiError(Response, 402, Problem, "insufficient_quota", "insufficient_credits");
}
} // namespace

void ServeModels(FServiceParts&, const httplib::Request&, httplib::Response& Response, const FAccount&)
{
	SendJson(Response, 200, MakeModelList());
}

void ServeCompletion(FServiceParts& Parts, const httplib::Request& Request, httplib::Response& Response, const FAccount& Account)
{
	FChatRequest Chat;
	std::string Error;
	if (!ParseChatRequest(Request.body, Chat, Error))
	{
		Refuse(Request, Response, 400, Error);
		return;
	}
	// The search for an answer is not done in vain; who takes the last credit meanwhile is seen after it.
	if (Chat.bCostsCredit && Parts.Credits.GetLeft(Account.Id, Parts.Now()) == 0)
	{
		RefuseWithoutCredits(Parts, Response);
		return;
	}
	const FChatReply Reply(Chat, ComposeGuideAnswer(*Parts.Guide, Chat.Questions));
	if (Chat.bCostsCredit && !Parts.Credits.Take(Account.Id, Parts.Now()))
	{
		RefuseWithoutCredits(Parts, Response);
		return;
	}
	Chat.bStream ? Stream(Parts, Response, Reply.MakeEvents()) : SendJson(Response, 200, Reply.MakeWhole());
}
