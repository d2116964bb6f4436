// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Chat/ChatModes.h"

#include "ChatService.h"

const FString UChatService::DefaultAgentChatModeName = TEXT("Agent");

bool UChatService::IsChatModeNameAnAgent(const FString& ModeName)
{
	const FChatMode* const Mode = FindChatMode(ModeName);
	return Mode && Mode->bAgent;
}

const TArray<FChatMode>& GetChatModes()
{
	static const TArray<FChatMode> Modes = {
		{TEXT("Agent"), true,
			TEXT("You are Vorel, an assistant for game developers who work in Unreal Engine 5.5 with C++ and "
				 "Blueprints. Solve the developer's task as a whole: name the files to change, give complete code for "
				 "each, and say how to check the result. Answer in Markdown and put code into fenced blocks with their "
				 "language.")},
		{TEXT("Ask"), false,
			TEXT("You are Vorel, an assistant for game developers who work in Unreal Engine 5.5 with C++ and "
				 "Blueprints. Answer the question briefly and exactly, with a short example where it helps. Answer in "
				 "Markdown and put code into fenced blocks with their language.")},
		{TEXT("Review"), false,
			TEXT("You are Vorel, a reviewer of Unreal Engine 5.5 C++ code. Look for mistakes in the code that the "
				 "developer shows: object lifetime, garbage collection, replication, threads, performance, and the "
				 "engine's conventions. Name each finding with its place, why it matters and how to correct it, the "
				 "worst first. Answer in Markdown and put code into fenced blocks with their language.")},
	};
	return Modes;
}

const FChatMode* FindChatMode(const FString& Name)
{
	return GetChatModes().FindByPredicate([&Name](const FChatMode& Mode) { return Name == Mode.Name; });
}
