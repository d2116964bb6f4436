// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Guide/GuideAnswer.h"

#include "Guide/Guide.h"

#include <algorithm>
#include <functional>
#include <set>

namespace
{
constexpr std::size_t MaxRelated = 3;

// Besides the introduction.
constexpr std::size_t MaxSections = 3;

std::string ComposeNothingFound(const FGuide& Guide)
{
	std::string Answer = "This is Vorel's **built-in guide**, not a language model. It has no article about that. It knows about:\n\n";
	std::set<std::string> Titles;
	for (const FGuideArticle& Article : Guide.GetArticles())
	{
		Titles.insert(Article.Title);
	}
	for (const std::string& Title : Titles)
	{
		Answer += "- " + Title + "\n";
	}
	return Answer + "\nAsk about one of these, or start the program with `--assistant URL` to talk to a language model.\n";
}

// The introduction and the sections that fit the question best; where too few do, those that stand first.
std::set<std::size_t> ChooseSections(const FGuideFinding& Finding)
{
	std::set<std::size_t> Chosen = {0};
	for (const std::size_t Section : Finding.Sections)
	{
		if (Chosen.size() <= MaxSections)
		{
			Chosen.insert(Section);
		}
	}
	for (std::size_t Section = 1; Section < Finding.Article->Sections.size() && Chosen.size() <= MaxSections; ++Section)
	{
		Chosen.insert(Section);
	}
	return Chosen;
}

std::string ListHeadings(const FGuideArticle& Article, const std::function<bool(std::size_t)>& IsListed)
{
	std::string List;
	for (std::size_t Section = 1; Section < Article.Sections.size(); ++Section)
	{
		if (IsListed(Section))
		{
			List += (List.empty() ? "" : " · ") + Article.Sections[Section].Heading;
		}
	}
	return List;
}

std::string ComposeSources(const FGuideArticle& Article, const std::set<std::size_t>& Chosen)
{
	const std::string Shown = ListHeadings(Article, [&Chosen](std::size_t Section) { return Chosen.count(Section) > 0; });
	const std::string Left = ListHeadings(Article, [&Chosen](std::size_t Section) { return Chosen.count(Section) == 0; });
	return "\n\n---\n\nSource: **" + Article.Title + "**" + (Shown.empty() ? "" : ": " + Shown) + "." +
		   (Left.empty() ? "" : " Not shown: " + Left + ".");
}

std::string ComposeRelated(const std::vector<FGuideFinding>& Found)
{
	std::string Related;
	for (std::size_t Index = 1; Index < std::min(Found.size(), MaxRelated + 1); ++Index)
	{
		Related += (Related.empty() ? "**" : ", **") + Found[Index].Article->Title + "**";
	}
	return Related.empty() ? "" : "\n\nThe guide also found your words in: " + Related + ".";
}
} // namespace

std::string ComposeGuideAnswer(const FGuide& Guide, const std::vector<std::string>& Questions)
{
	const std::vector<FGuideFinding> Found = Guide.Find(Questions);
	if (Found.empty())
	{
		return ComposeNothingFound(Guide);
	}
	const FGuideArticle& Article = *Found.front().Article;
	const std::set<std::size_t> Chosen = ChooseSections(Found.front());
	std::string Answer = "This is Vorel's **built-in guide**, not a language model. From its article **" + Article.Title + "**:";
	for (const std::size_t Section : Chosen)
	{
		Answer += "\n\n" + Article.Sections[Section].Text;
	}
	return Answer + ComposeSources(Article, Chosen) + ComposeRelated(Found) + "\n";
}
