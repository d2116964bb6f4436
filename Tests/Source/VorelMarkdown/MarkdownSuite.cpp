// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownSuite.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace
{
const std::string Fence(32, '`');

// Tabs are written as arrows.
void AddLine(std::string& Text, std::string_view Line)
{
	constexpr std::string_view Arrow = "\u2192";
	for (size_t Position; (Position = Line.find(Arrow)) != std::string_view::npos; Line.remove_prefix(Position + Arrow.size()))
	{
		Text.append(Line.substr(0, Position)) += '\t';
	}
	Text.append(Line) += '\n';
}

void ReadExample(std::istream& Lines, FSuiteExample& Example)
{
	std::string* Part = &Example.Markdown;
	for (std::string Line; std::getline(Lines, Line) && Line != Fence;)
	{
		if (Line == "." && Part == &Example.Markdown)
		{
			Part = &Example.Html;
		}
		else
		{
			AddLine(*Part, Line);
		}
	}
}
} // namespace

std::string GetSuitePath(std::string_view Name)
{
	return VOREL_SUITES_FOLDER "/" + std::string(Name) + ".txt";
}

std::string LoadSuiteText(std::string_view Name)
{
	const std::string Path = GetSuitePath(Name);
	std::ifstream File(Path);
	EXPECT_TRUE(File.is_open()) << "The examples of " << Name << " are missing, which ./test.sh fetches: there is no " << Path;
	std::stringstream Text;
	Text << File.rdbuf();
	return Text.str();
}

std::vector<FSuiteExample> ReadSuite(std::string_view Text)
{
	const std::string Opening = Fence + " example";
	std::vector<FSuiteExample> Examples;
	std::istringstream Lines{std::string(Text)};
	for (std::string Line; std::getline(Lines, Line) && Line != "<!-- END TESTS -->";)
	{
		if (Line.starts_with(Opening))
		{
			const std::string Extension = Line.substr(std::min(Opening.size() + 1, Line.size()));
			Examples.push_back({static_cast<int>(Examples.size()) + 1, Extension, "", ""});
			ReadExample(Lines, Examples.back());
		}
	}
	return Examples;
}
