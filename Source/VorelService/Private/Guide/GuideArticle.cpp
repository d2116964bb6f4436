// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Guide/GuideArticle.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace
{
bool StartsWith(const std::string& Line, const std::string& Prefix)
{
	return Line.compare(0, Prefix.size(), Prefix) == 0;
}

bool ReadPrefixedLine(std::istream& Stream, const std::string& Prefix, std::string& OutRest)
{
	std::string Line;
	if (!std::getline(Stream, Line) || !StartsWith(Line, Prefix))
	{
		return false;
	}
	OutRest = Line.substr(Prefix.size());
	return !OutRest.empty();
}

void TrimBlankLines(std::string& Text)
{
	Text.erase(0, Text.find_first_not_of('\n'));
	Text.erase(Text.find_last_not_of('\n') + 1);
}

std::vector<FGuideSection> ReadSections(std::istream& Stream)
{
	std::vector<FGuideSection> Sections(1);
	bool bInFence = false;
	for (std::string Line; std::getline(Stream, Line);)
	{
		bInFence ^= StartsWith(Line, "```");
		if (!bInFence && StartsWith(Line, "## "))
		{
			Sections.emplace_back().Heading = Line.substr(3);
		}
		Sections.back().Text += Line + '\n';
	}
	for (FGuideSection& Section : Sections)
	{
		TrimBlankLines(Section.Text);
	}
	return Sections;
}

bool ReadArticle(const std::filesystem::path& File, FGuideArticle& OutArticle)
{
	std::ifstream Stream(File);
	if (!ReadPrefixedLine(Stream, "# ", OutArticle.Title) || !ReadPrefixedLine(Stream, "Keywords: ", OutArticle.Keywords))
	{
		return false;
	}
	OutArticle.Sections = ReadSections(Stream);
	return true;
}

std::vector<std::filesystem::path> ListArticleFiles(const std::string& Folder)
{
	std::vector<std::filesystem::path> Files;
	std::error_code Error;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Folder, Error))
	{
		if (Entry.path().extension() == ".md")
		{
			Files.push_back(Entry.path());
		}
	}
	std::sort(Files.begin(), Files.end());
	return Files;
}
} // namespace

std::vector<FGuideArticle> ReadGuideArticles(const std::string& Folder, std::string& OutError)
{
	std::vector<FGuideArticle> Articles;
	for (const std::filesystem::path& File : ListArticleFiles(Folder))
	{
		if (!ReadArticle(File, Articles.emplace_back()))
		{
			OutError = "The guide's article " + File.string() + " has no title or no keywords.";
			return {};
		}
	}
	if (Articles.empty())
	{
		OutError = "The built-in guide has no articles in " + Folder + ".";
	}
	return Articles;
}
