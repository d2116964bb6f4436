// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "ServiceFixture.h"

#include <filesystem>
#include <fstream>

using FGuideTest = FServiceTest;

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
		{"Why does my UObject pointer crash after garbage collection?", "Smart pointers and garbage collection"},
		{"TSharedPtr or TWeakObjectPtr?", "Smart pointers and garbage collection"},
		{"Make a C++ function callable from Blueprint", "Exposing C++ to Blueprints"},
		{"What does UPROPERTY(EditAnywhere) do?", "Exposing C++ to Blueprints"},
		{"How do I sort a TArray?", "Containers and strings"},
		{"difference between FString, FName and FText", "Containers and strings"},
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

TEST_F(FGuideTest, SaysWhenItKnowsNothingAndWhatItKnows)
{
	for (const char* Question : {"What's the weather in Paris?", "Please write me a poem about autumn leaves", "How do I bake a cake?",
			 "Wie spät ist es?", "今日は", "???", "", "how do I do this", "\" OR *: NEAR(", "NOT AND OR"})
	{
		const std::string Answer = Ask(Question);
		EXPECT_NE(Answer.find("It has no article about that."), std::string::npos) << Question << "\n" << Answer.substr(0, 200);
		EXPECT_NE(Answer.find("- Timers\n"), std::string::npos) << Question;
	}
}

TEST_F(FGuideTest, NamesFurtherArticlesAfterTheFirst)
{
	const std::string Answer = Ask("How do I fire a delegate from a timer in a replicated actor?");
	EXPECT_NE(Answer.find("The guide also found your words in: **"), std::string::npos) << Answer;
}

TEST_F(FGuideTest, AnswersTheLastQuestionOfAConversation)
{
	json Body = MakeQuestion("How do I set a timer?", false);
	Body["messages"].push_back({{"role", "assistant"}, {"content", "Like this."}});
	Body["messages"].push_back({{"role", "user"}, {"content", json::array({{{"type", "text"}, {"text", "And how do I replicate it?"}}})}});
	const httplib::Result Reply = Post(Body.dump());
	ASSERT_TRUE(Reply);
	EXPECT_NE(Reply->body.find("**Replication**"), std::string::npos);
}

TEST_F(FGuideTest, ArticlesHaveCodeAndNoEscapedLineBreaks)
{
	int Articles = 0;
	for (const auto& Entry : std::filesystem::directory_iterator(VOREL_GUIDE_FOLDER))
	{
		std::ifstream File(Entry.path());
		const std::string Text((std::istreambuf_iterator<char>(File)), std::istreambuf_iterator<char>());
		EXPECT_EQ(Text.find("\\n"), std::string::npos) << Entry.path();
		EXPECT_NE(Text.find("```cpp\n"), std::string::npos) << Entry.path();
		std::size_t Fences = 0;
		for (std::size_t At = Text.find("\n```"); At != std::string::npos; At = Text.find("\n```", At + 1))
		{
			++Fences;
		}
		EXPECT_EQ(Fences % 2, 0u) << Entry.path();
		++Articles;
	}
	EXPECT_GE(Articles, 8);
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
