// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstddef>
#include <string>
#include <vector>

// What the service takes from the body of a chat-completions request.
struct FChatRequest
{
	// Texts of the user's messages, the one to answer last. Never empty.
	std::vector<std::string> Questions;
	bool bStream = false;
	bool bIncludeUsage = false;
	std::size_t PromptPieces = 0;

	// False for the mode that is free.
	bool bCostsCredit = true;
};

// False for what is no such request; OutError then holds a sentence that names the fault.
bool ParseChatRequest(const std::string& Body, FChatRequest& OutRequest, std::string& OutError);
