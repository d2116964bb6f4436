// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <string>
#include <vector>

struct FGuideSection
{
	// Empty for the introduction, which stands first in every article.
	std::string Heading;

	// Markdown with the line of the heading, without blank lines at its ends.
	std::string Text;
};

struct FGuideArticle
{
	std::string Title;

	// Words of the subject that people use and the text need not, separated by blanks. Never shown.
	std::string Keywords;

	std::vector<FGuideSection> Sections;
};

// Reads every *.md of the folder in the order of the names: "# Title", then "Keywords: ...", then Markdown. Empty with a sentence in
// OutError when there is no article, or one of them lacks its title or keywords.
std::vector<FGuideArticle> ReadGuideArticles(const std::string& Folder, std::string& OutError);
