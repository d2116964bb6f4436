// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "LocalService.h"

#include <atomic>
#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>

using nlohmann::json;

// A running service with the real guide, a client of it that may do what its owner may, and a clock that stands still.
class FServiceTest : public testing::Test
{
protected:
	static constexpr const char* OwnerKey = "key-of-the-owner";

	void SetUp() override { Start({.PieceInterval = {}, .DailyCredits = 1000}); }

	void Start(const FLocalServiceOptions& Options)
	{
		Service.reset();
		std::string Error;
		Service = Launch(Options, Error);
		ASSERT_TRUE(Service) << Error;
		Http = Connect(*Service);
		Http->set_bearer_token_auth(OwnerKey);
	}

	// As many as a test wants besides the first.
	std::unique_ptr<FLocalService> Launch(FLocalServiceOptions Options, std::string& OutError)
	{
		Options.GuideFolder = VOREL_GUIDE_FOLDER;
		Options.OwnerKey = OwnerKey;
		Options.Clock = [this]
		{
			return Time.load();
		};
		return FLocalService::Start(Options, OutError);
	}

	static std::unique_ptr<httplib::Client> Connect(const FLocalService& To)
	{
		return std::make_unique<httplib::Client>("127.0.0.1", To.GetPort());
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

	// Noon of a day in 2026.
	std::atomic<std::int64_t> Time = 1'790'000'000 / 86'400 * 86'400 + 43'200;
	std::unique_ptr<FLocalService> Service;
	std::unique_ptr<httplib::Client> Http;
};
