// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Guide/GuideArticle.h"
#include "Guide/GuideIndex.h"

#include <memory>
#include <mutex>
#include <string>
#include <vector>

struct FGuideFinding
{
	const FGuideArticle* Article;

	// The article's sections that hold words of the question, best first, by their position.
	std::vector<std::size_t> Sections;
};

// The bundled articles and what they know about a question. Safe to ask from several threads.
class FGuide
{
public:
	// Null with a sentence in OutError when the articles can't be read or indexed.
	static std::unique_ptr<FGuide> Load(const std::string& Folder, std::string& OutError);

	// In the order of their file names.
	const std::vector<FGuideArticle>& GetArticles() const { return Articles; }

	// The articles that answer the last of a conversation's questions, best first. Empty when the guide is not about it.
	//
	// A word weighs by its rarity among the articles' subjects (titles, headings, keywords): what no article holds weighs most. The guide
	// takes a question for its own when at least half of that weight is known to it; a word in running texts alone proves little and
	// counts less. An article must have a word of the question among its subjects to be found. Articles are ranked by bm25 and by the
	// share of the question that they cover. A question that refers back ("And how do I stop it?") inherits half of what the one before
	// it was about.
	std::vector<FGuideFinding> Find(const std::vector<std::string>& Questions) const;

private:
	struct FRating;

	FGuide(std::vector<FGuideArticle> InArticles, std::unique_ptr<FGuideIndex> InIndex);

	void Rate(const std::vector<std::string>& Words, double Influence, FRating& Rating) const;
	std::vector<FGuideFinding> Rank(const FRating& Rating) const;

	std::vector<FGuideArticle> Articles;
	std::unique_ptr<FGuideIndex> Index;

	// One question at a time.
	mutable std::mutex Mutex;
};
