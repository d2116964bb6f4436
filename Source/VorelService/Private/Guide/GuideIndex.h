// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "Guide/GuideArticle.h"

#include <memory>
#include <string>
#include <vector>

class FSqliteDatabase;

// The full-text index over the guide's articles and their sections, in memory. Words are compared by their stems. An expression is one of
// SQLite's FTS5. To be used by one thread at a time.
class FGuideIndex
{
public:
	struct FHit
	{
		// Of the article, or of the section in its article.
		std::size_t Index;

		// By bm25; the higher, the better.
		double Score;
	};

	~FGuideIndex();

	// Null with a sentence in OutError when the index can't be built.
	static std::unique_ptr<FGuideIndex> Build(const std::vector<FGuideArticle>& Articles, std::string& OutError);

	// The expression for a word: the word, or what begins with it where the guide holds no such word. Words hold no double quotes.
	std::string GetExpression(const std::string& Word) const;

	// The same, for a word among the title, the keywords and the headings of an article only.
	static std::string InSubject(const std::string& Expression);

	// Best first. An empty expression finds nothing.
	std::vector<FHit> FindArticles(const std::string& Expression) const;
	std::vector<FHit> FindSections(std::size_t Article, const std::string& Expression) const;

private:
	FGuideIndex();

	void InsertArticle(std::size_t Index, const FGuideArticle& Article);
	void InsertSection(std::size_t Article, std::size_t Index, const FGuideSection& Section);

	std::unique_ptr<FSqliteDatabase> Database;
};
