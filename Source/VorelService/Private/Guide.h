// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

struct sqlite3;

struct FGuideArticle
{
	std::string Title;

	// Words of the subject that people use and the text need not, separated by blanks. Never shown.
	std::string Keywords;

	// Markdown without the title line.
	std::string Text;
};

// The bundled articles and a full-text index over them. Safe to ask from several threads.
class FGuide
{
public:
	// Reads every *.md of the folder: "# Title", then "Keywords: ...", then the text. Null with a sentence in OutError when there is no
	// article or one of them has no title line.
	static std::unique_ptr<FGuide> Load(const std::string& Folder, std::string& OutError);

	// In the order of their file names.
	const std::vector<FGuideArticle>& GetArticles() const { return Articles; }

	// The articles that answer the question, best first. Empty when none is about it: a word in a running text alone proves little, so an
	// article counts if a word hits its title or keywords, or if its text holds most of the question's words.
	std::vector<const FGuideArticle*> Find(const std::string& Question) const;

private:
	struct FCloseDatabase
	{
		void operator()(sqlite3* Handle) const;
	};

	FGuide(std::vector<FGuideArticle> InArticles, sqlite3* InDatabase);

	bool BuildIndex(std::string& OutError);
	std::vector<std::int64_t> Match(const std::string& Expression) const;

	std::vector<FGuideArticle> Articles;
	std::unique_ptr<sqlite3, FCloseDatabase> Database;

	// One statement at a time; a look-up takes well under a millisecond.
	mutable std::mutex Mutex;
};
