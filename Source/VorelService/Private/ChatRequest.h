// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstddef>
#include <string>

// What the service takes from the body of a chat-completions request.
struct FChatRequest
{
	// Text of the last message of the user.
	std::string Question;
	bool bStream = false;
	bool bIncludeUsage = false;
	std::size_t PromptPieces = 0;
};

// False for what is no such request; OutError then holds a sentence that names the fault.
bool ParseChatRequest(const std::string& Body, FChatRequest& OutRequest, std::string& OutError);
