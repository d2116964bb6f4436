// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "GuideQuestions.h"
#include "ServiceFixture.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <span>
#include <sstream>

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

// Words of four letters and more, cut to four, so that inflected forms are the same.
std::set<std::string> GetWordBeginnings(const std::string& Text)
{
	std::string Letters;
	for (const char Character : Text)
	{
		Letters += std::isalpha(static_cast<unsigned char>(Character)) ? static_cast<char>(std::tolower(Character)) : ' ';
	}
	std::set<std::string> Words;
	std::istringstream Stream(Letters);
	for (std::string Word; Stream >> Word;)
	{
		if (Word.size() >= 4)
		{
			Words.insert(Word.substr(0, 4));
		}
	}
	return Words;
}

void ExpectNoTitleWord(const FGuideQuestion& Row)
{
	const std::set<std::string> Words = GetWordBeginnings(Row.Question);
	for (const std::string& Word : GetWordBeginnings(ReadTitle(Row.Article)))
	{
		EXPECT_EQ(Words.count(Word), 0u) << Word << ": " << Row.Question;
	}
}
} // namespace

TEST_F(FGuideTest, AnswersNaturalQuestionsFromTheRightArticle)
{
	const std::pair<const char*, const char*> Rows[] = {
		{"How do I set a timer?", "Timers"},
		{"call a function every 2 seconds", "Timers"},
		{"What's the best way to delay something by five seconds?", "Timers"},
		{"How can I spawn an actor at run time?", "Actors and components"},
		{"My component doesn't tick, why?", "Actors and components"},
		{"How do I declare a multicast delegate?", "Delegates and events"},
		{"subscribing to an event from another class", "Delegates and events"},
		{"Why does my UObject pointer crash after garbage collection?", "Garbage collection"},
		{"TSharedPtr or TWeakPtr?", "Smart pointers"},
		{"Make a C++ function callable from Blueprint", "Exposing C++ to Blueprints"},
		{"What does UPROPERTY(EditAnywhere) do?", "Exposing C++ to Blueprints"},
		{"How do I sort a TArray?", "Arrays, maps and sets"},
		{"difference between FString, FName and FText", "Strings, names and text"},
		{"How do I print to the log?", "Logging"},
		{"UE_LOG with a float", "Logging"},
		{"How do I replicate a variable to all clients?", "Replication"},
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
	for (const std::span<const FGuideQuestion> Table :
		{std::span<const FGuideQuestion>(TunedQuestions), std::span<const FGuideQuestion>(HeldOutQuestions)})
	{
		std::size_t Right = 0;
		std::string Wrong;
		for (const FGuideQuestion& Row : Table)
		{
			ExpectNoTitleWord(Row);
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
	std::vector<const char*> Questions(std::begin(ForeignQuestions), std::end(ForeignQuestions));
	Questions.insert(
		Questions.end(), {"What's the weather in Paris?", "Please write me a poem about autumn leaves", "How do I bake a cake?",
							 "Wie spät ist es?", "今日は", "???", "", "how do I do this", "\" OR *: NEAR(", "NOT AND OR"});
	for (const char* Question : Questions)
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

TEST_F(FGuideTest, ArticlesHaveCodeAndNoEscapedLineBreaks)
{
	int Articles = 0;
	for (const auto& Entry : std::filesystem::directory_iterator(VOREL_GUIDE_FOLDER))
	{
		std::ifstream File(Entry.path());
		const std::string Text((std::istreambuf_iterator<char>(File)), std::istreambuf_iterator<char>());
		EXPECT_EQ(Text.find("\\n"), std::string::npos) << Entry.path();
		EXPECT_EQ(Text.find("\\N"), std::string::npos) << Entry.path();
		EXPECT_NE(Text.find("```cpp\n"), std::string::npos) << Entry.path();
		std::size_t Fences = 0;
		for (std::size_t At = Text.find("\n```"); At != std::string::npos; At = Text.find("\n```", At + 1))
		{
			++Fences;
		}
		EXPECT_EQ(Fences % 2, 0u) << Entry.path();
		++Articles;
	}
	EXPECT_GE(Articles, 24);
}

TEST(FGuideFolderTest, ReportsAFolderWithoutUsableArticles)
{
	const std::filesystem::path Folder = std::filesystem::path(testing::TempDir()) / "vorel-guide-test";
	std::filesystem::remove_all(Folder);
	std::string Error;
	EXPECT_FALSE(FLocalService::Start({.GuideFolder = Folder.string()}, Error));
	EXPECT_NE(Error.find("has no articles in " + Folder.string()), std::string::npos) << Error;

	std::filesystem::create_directory(Folder);
	std::ofstream(Folder / "Broken.md") << "No title here\n";
	EXPECT_FALSE(FLocalService::Start({.GuideFolder = Folder.string()}, Error));
	EXPECT_NE(Error.find("Broken.md has no title or no keywords."), std::string::npos) << Error;
	std::filesystem::remove_all(Folder);
}
