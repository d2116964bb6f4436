// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "GuideQuestions.h"
#include "ServiceFixture.h"
#include "Support/TempFolder.h"

#include <filesystem>
#include <fstream>
#include <span>

using FGuideTest = FServiceTest;

namespace
{
std::string ReadTitle(const std::string& Article)
{
	std::ifstream File(std::filesystem::path(VOREL_GUIDE_FOLDER) / (Article + ".md"));
	std::string Line;
	std::getline(File, Line);
	return Line.substr(std::min<std::size_t>(Line.size(), 2));
}

} // namespace

TEST_F(FGuideTest, AnswersNaturalQuestionsFromTheRightArticle)
{
	const std::pair<const char*, const char*> Rows[] = {
		{"How do I set a timer?", "Timers"},
		{"My component doesn't tick, why?", "Actors and components"},
		{"subscribing to an event from another class", "Delegates and events"},
		{"TSharedPtr or TWeakPtr?", "Smart pointers"},
		{"What does UPROPERTY(EditAnywhere) do?", "Exposing C++ to Blueprints"},
		{"difference between FString, FName and FText", "Strings, names and text"},
		{"UE_LOG with a float", "Logging"},
		{"server RPC isn't called", "Replication"},
		{"bind a key with the enhanced input system", "Enhanced Input"},
		{"unresolved external symbol when linking against another module", "Modules and Build.cs"},
	};
	for (const auto& [Question, Title] : Rows)
	{
		const std::string Answer = Ask(Question);
		EXPECT_NE(Answer.find("From its article **" + std::string(Title) + "**"), std::string::npos) << Question << "\n"
																									 << Answer.substr(0, 200);
		EXPECT_NE(Answer.find("built-in guide"), std::string::npos) << Question;
		EXPECT_NE(Answer.find("```cpp\n"), std::string::npos) << Question;
	}
}

TEST_F(FGuideTest, UnderstandsQuestionsWithoutAWordOfTheTitle)
{
	for (const std::span<const FGuideQuestion> Table : {std::span<const FGuideQuestion>(TunedQuestions), {HeldOutQuestions}})
	{
		std::size_t Right = 0;
		std::string Wrong;
		for (const FGuideQuestion& Row : Table)
		{
			const std::string Answer = Ask(Row.Question);
			const bool bRight = Answer.find("From its article **" + ReadTitle(Row.Article) + "**:") != std::string::npos;
			Right += bRight ? 1 : 0;
			Wrong += bRight ? "" : std::string(Row.Article) + ": " + Answer.substr(0, 120) + "\n";
		}
		EXPECT_GE(Right * 10, Table.size() * 9) << Wrong;
		RecordProperty("RightOf" + std::to_string(Table.size()), static_cast<int>(Right));
	}
}

TEST_F(FGuideTest, SaysWhenItKnowsNothingAndWhatItKnows)
{
	// Some of their words (world, file, return, write) are an engine programmer's daily bread.
	for (const char* const Question : {"How long do I boil potatoes?", "Who won the football world cup in 1990?",
			 "How do I file my tax return?", "Write me a poem about the sea", "Which train goes from Hamburg to Vienna on Sunday morning?",
			 "Wie spät ist es?", "今日は", "???", "", "how do I do this", "\" OR *: NEAR(", "NOT AND OR"})
	{
		const std::string Answer = Ask(Question);
		EXPECT_NE(Answer.find("It has no article about that."), std::string::npos) << Question << "\n" << Answer.substr(0, 200);
		EXPECT_NE(Answer.find("- Timers\n"), std::string::npos) << Question;
	}
}

TEST_F(FGuideTest, ShowsTheSectionsThatFitAndNamesItsSources)
{
	const std::string Answer = Ask("How do I fire a delegate from a timer in a replicated actor, and stop listening?");
	EXPECT_NE(Answer.find("\n\n## Listen, and stop listening\n"), std::string::npos) << Answer;
	EXPECT_NE(Answer.find("\n\n---\n\nSource: **Delegates and events**: "), std::string::npos) << Answer;
	EXPECT_NE(Answer.find("The guide also found your words in: **"), std::string::npos) << Answer;

	const std::string Part = Ask("How do I add up tagged containers with a query that designers put together for a spawner?");
	const std::size_t Left = Part.find(" Not shown: ");
	ASSERT_NE(Left, std::string::npos) << Part;
	const std::string Heading = Part.substr(Left + 12, Part.find_first_of(".", Left + 12) - Left - 12);
	EXPECT_EQ(Part.find("## " + Heading.substr(0, Heading.find(" · "))), std::string::npos) << Heading;
}

TEST_F(FGuideTest, UnderstandsQuestionsThatReferBack)
{
	json Body = MakeQuestion("How do I subscribe to a delegate?", false);
	const auto AskNext = [&](const json& Content)
	{
		Body["messages"].push_back({{"role", "assistant"}, {"content", "Like this."}});
		Body["messages"].push_back({{"role", "user"}, {"content", Content}});
		return json::parse(Post(Body.dump())->body)["choices"][0]["message"]["content"].get<std::string>();
	};
	const std::pair<const char*, const char*> Rows[] = {
		{"And how do I stop it?", "From its article **Delegates and events**"},
		{"Can you show me an example?", "From its article **Delegates and events**"},
		{"Now how do I set a timer?", "From its article **Timers**"},
		{"And how do I stop it?", "From its article **Timers**"},
		{"But how do I replicate it?", "From its article **Replication**"},
		{"Who won the football world cup in 1990?", "It has no article about that."},
	};
	for (const auto& [Question, Expected] : Rows)
	{
		const std::string Answer = AskNext(json::array({{{"type", "text"}, {"text", Question}}}));
		EXPECT_NE(Answer.find(Expected), std::string::npos) << Question << "\n" << Answer.substr(0, 120);
	}
}

TEST_F(FGuideTest, ArticlesEndTheirCodeAndHaveNoEscapedLineBreaks)
{
	int Articles = 0;
	for (const auto& Entry : std::filesystem::directory_iterator(VOREL_GUIDE_FOLDER))
	{
		std::ifstream File(Entry.path());
		bool bCode = false;
		for (std::string Line; std::getline(File, Line);)
		{
			EXPECT_EQ(Line.find("\\n"), std::string::npos) << Entry.path();
			bCode = bCode != Line.starts_with("```");
		}
		EXPECT_FALSE(bCode) << Entry.path();
		++Articles;
	}
	EXPECT_GE(Articles, 24);
}

TEST(FGuideFolderTest, ReportsAFolderWithoutUsableArticles)
{
	const FTempFolder Folder;
	const std::string Path = TCHAR_TO_UTF8(Folder.GetPath());
	std::string Error;
	for (const std::string& Missing : {Path, Path + "/none"})
	{
		EXPECT_FALSE(FLocalService::Start({.GuideFolder = Missing}, Error));
		EXPECT_NE(Error.find("has no articles in " + Missing), std::string::npos) << Error;
	}
	Folder.Write(TEXT("Broken.md"), "No title here\n");
	EXPECT_FALSE(FLocalService::Start({.GuideFolder = Path}, Error));
	EXPECT_NE(Error.find("Broken.md has no title or no keywords."), std::string::npos) << Error;
}
