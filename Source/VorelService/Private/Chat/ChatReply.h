// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <vector>

struct FChatRequest;

// The one model that the service offers.
inline constexpr const char* GuideModelName = "vorel-guide";

// One reply in the chat-completions format, whole or as the events of a stream.
class FChatReply
{
public:
	FChatReply(const FChatRequest& Request, const std::string& Answer);

	std::string MakeWhole() const;

	// The stream in order, each a complete server-sent event: the role, the pieces, the finish reason, the usage if asked for, the end
	// mark.
	std::vector<std::string> MakeEvents() const;

private:
	std::string MakeEvent(const std::string& DeltaKey, const std::string& DeltaText, bool bFinished) const;
	std::string MakeUsageEvent() const;

	std::string Id;
	std::vector<std::string> Pieces;
	std::size_t PromptPieces;
	bool bIncludeUsage;
};

std::string MakeModelList();
