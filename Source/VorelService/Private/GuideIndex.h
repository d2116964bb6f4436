// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include "GuideArticle.h"

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

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

	// Null with a sentence in OutError when the index can't be built.
	static std::unique_ptr<FGuideIndex> Build(const std::vector<FGuideArticle>& Articles, std::string& OutError);

	// The expression for a word: the word, or what begins with it where the guide holds no such word. Words hold no double quotes.
	std::string GetExpression(const std::string& Word) const;

	// The same, for a word among the title, the keywords and the headings of an article only.
	static std::string InSubject(const std::string& Expression);

	// Best first.
	std::vector<FHit> FindArticles(const std::string& Expression) const;
	std::vector<FHit> FindSections(std::size_t Article, const std::string& Expression) const;

private:
	struct FCloseDatabase
	{
		void operator()(sqlite3* Handle) const;
	};

	explicit FGuideIndex(sqlite3* InDatabase);

	bool Execute(const char* Sql) const;
	bool InsertArticle(std::size_t Index, const FGuideArticle& Article) const;
	bool InsertSection(std::size_t Article, std::size_t Index, const FGuideSection& Section) const;

	std::unique_ptr<sqlite3, FCloseDatabase> Database;
};
