// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "MarkdownSuite.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace
{
// Tabs are written as arrows.
std::string WithTabs(std::string Text)
{
	constexpr std::string_view Arrow = "\u2192";
	for (size_t At = 0; (At = Text.find(Arrow, At)) != std::string::npos;)
	{
		Text.replace(At, Arrow.size(), "\t");
	}
	return Text;
}
} // namespace

std::string GetSuitePath(std::string_view Name)
{
	return VOREL_SUITES_FOLDER "/" + std::string(Name) + ".txt";
}

std::string LoadText(const std::string& Path)
{
	std::ifstream File(Path);
	EXPECT_TRUE(File.is_open()) << "There is no " << Path << "; the examples of the suites are fetched by ./test.sh";
	std::stringstream Text;
	Text << File.rdbuf();
	return Text.str();
}

std::vector<FSuiteExample> ReadSuite(std::string_view Name)
{
	const std::string Fence(32, '`');
	const std::string Opening = Fence + " example";
	std::string Text = WithTabs(LoadText(GetSuitePath(Name)));
	Text.resize(std::min(Text.find("<!-- END TESTS -->"), Text.size()));
	std::vector<FSuiteExample> Examples;
	for (size_t At = 0; (At = Text.find(Opening, At)) != std::string::npos;)
	{
		const size_t ExtensionBegin = At + Opening.size();
		const size_t LineEnd = Text.find('\n', At);
		const size_t Dot = Text.find("\n.\n", LineEnd) + 1;
		const size_t End = Text.find("\n" + Fence + "\n", Dot + 1) + 1;
		std::string Extension = Text.substr(ExtensionBegin, LineEnd - ExtensionBegin);
		Extension.erase(0, Extension.starts_with(' ') ? 1 : 0);
		Examples.push_back({static_cast<int>(Examples.size()) + 1, Extension, Text.substr(LineEnd + 1, Dot - LineEnd - 1),
			Text.substr(Dot + 2, End - Dot - 2)});
		At = End;
	}
	return Examples;
}
