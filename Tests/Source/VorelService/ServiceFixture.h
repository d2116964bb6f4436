// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "LocalService.h"

#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>

using nlohmann::json;

// A running service with the real guide, and a client of it.
class FServiceTest : public testing::Test
{
protected:
	void SetUp() override { Start({.PieceInterval = {}}); }

	void Start(FLocalServiceOptions Options)
	{
		Service.reset();
		Options.GuideFolder = VOREL_GUIDE_FOLDER;
		std::string Error;
		Service = FLocalService::Start(Options, Error);
		ASSERT_TRUE(Service) << Error;
		Http = std::make_unique<httplib::Client>(Service->GetAddress());
	}

	static json MakeQuestion(const std::string& Text, bool bStream)
	{
		return {{"model", "any"}, {"stream", bStream},
			{"messages", {{{"role", "system"}, {"content", "Be brief."}}, {{"role", "user"}, {"content", Text}}}}};
	}

	httplib::Result Post(const std::string& Body) { return Http->Post("/v1/chat/completions", Body, "application/json"); }

	std::string Ask(const std::string& Question)
	{
		const httplib::Result Reply = Post(MakeQuestion(Question, false).dump());
		return Reply && Reply->status == 200 ? json::parse(Reply->body)["choices"][0]["message"]["content"].get<std::string>()
											 : "(no answer)";
	}

	std::unique_ptr<FLocalService> Service;
	std::unique_ptr<httplib::Client> Http;
};
