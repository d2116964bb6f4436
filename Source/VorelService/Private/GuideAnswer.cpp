// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "GuideAnswer.h"

#include "Guide.h"

#include <algorithm>

namespace
{
constexpr std::size_t MaxRelated = 3;

std::string ComposeNothingFound(const FGuide& Guide)
{
	std::string Answer = "This is Vorel's **built-in guide**, not a language model. It has no article about that. It knows about:\n\n";
	for (const FGuideArticle& Article : Guide.GetArticles())
	{
		Answer += "- " + Article.Title + "\n";
	}
	return Answer + "\nAsk about one of these, or start the program with `--assistant URL` to talk to a language model.\n";
}

std::string ComposeRelated(const std::vector<const FGuideArticle*>& Found)
{
	std::string Related;
	for (std::size_t Index = 1; Index < std::min(Found.size(), MaxRelated + 1); ++Index)
	{
		Related += (Related.empty() ? "**" : ", **") + Found[Index]->Title + "**";
	}
	return Related.empty() ? "" : "\n\nThe guide also found your words in: " + Related + ".";
}
} // namespace

std::string ComposeGuideAnswer(const FGuide& Guide, const std::string& Question)
{
	const std::vector<const FGuideArticle*> Found = Guide.Find(Question);
	if (Found.empty())
	{
		return ComposeNothingFound(Guide);
	}
	return "This is Vorel's **built-in guide**, not a language model. From its article **" + Found.front()->Title + "**:\n\n" +
		   Found.front()->Text.substr(0, Found.front()->Text.find_last_not_of('\n') + 1) + ComposeRelated(Found) + "\n";
}
