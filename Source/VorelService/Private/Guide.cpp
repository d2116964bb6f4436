// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Guide.h"

#include "QuestionWords.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sqlite3.h>
#include <sstream>

namespace
{
struct FFinalize
{
	void operator()(sqlite3_stmt* Statement) const { sqlite3_finalize(Statement); }
};
using FStatement = std::unique_ptr<sqlite3_stmt, FFinalize>;

FStatement Prepare(sqlite3* Database, const char* Sql)
{
	sqlite3_stmt* Statement = nullptr;
	sqlite3_prepare_v2(Database, Sql, -1, &Statement, nullptr);
	return FStatement(Statement);
}

void Bind(const FStatement& Statement, int Index, const std::string& Text)
{
	sqlite3_bind_text(Statement.get(), Index, Text.data(), static_cast<int>(Text.size()), SQLITE_TRANSIENT);
}

// Question words hold no double quotes.
std::string Quote(const std::string& Word)
{
	return '"' + Word + '"';
}

// Takes the prefix off the front line of the text; the front line must begin with it.
bool TakeLine(std::string& Text, const std::string& Prefix, std::string& OutRest)
{
	if (Text.compare(0, Prefix.size(), Prefix) != 0)
	{
		return false;
	}
	const std::size_t End = std::min(Text.find('\n'), Text.size());
	OutRest = Text.substr(Prefix.size(), End - Prefix.size());
	Text.erase(0, End);
	Text.erase(0, Text.find_first_not_of('\n'));
	return !OutRest.empty();
}

bool ReadArticle(const std::filesystem::path& File, FGuideArticle& OutArticle)
{
	std::ifstream Stream(File, std::ios::binary);
	std::ostringstream Buffer;
	Buffer << Stream.rdbuf();
	OutArticle.Text = Buffer.str();
	return TakeLine(OutArticle.Text, "# ", OutArticle.Title) && TakeLine(OutArticle.Text, "Keywords: ", OutArticle.Keywords);
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

void FGuide::FCloseDatabase::operator()(sqlite3* Handle) const
{
	sqlite3_close(Handle);
}

FGuide::FGuide(std::vector<FGuideArticle> InArticles, sqlite3* InDatabase)
	: Articles(std::move(InArticles))
	, Database(InDatabase)
{
}

std::unique_ptr<FGuide> FGuide::Load(const std::string& Folder, std::string& OutError)
{
	std::vector<FGuideArticle> Articles;
	for (const std::filesystem::path& File : ListArticleFiles(Folder))
	{
		if (!ReadArticle(File, Articles.emplace_back()))
		{
			OutError = "The guide's article " + File.string() + " has no title or no keywords.";
			return nullptr;
		}
	}
	if (Articles.empty())
	{
		OutError = "The built-in guide has no articles in " + Folder + ".";
		return nullptr;
	}
	sqlite3* Handle = nullptr;
	sqlite3_open(":memory:", &Handle);
	std::unique_ptr<FGuide> Guide(new FGuide(std::move(Articles), Handle));
	return Guide->BuildIndex(OutError) ? std::move(Guide) : nullptr;
}

bool FGuide::BuildIndex(std::string& OutError)
{
	const char* Create = "CREATE VIRTUAL TABLE Article USING fts5(Title, Keywords, Text, tokenize = 'porter unicode61')";
	bool bOk = sqlite3_exec(Database.get(), Create, nullptr, nullptr, nullptr) == SQLITE_OK;
	for (std::size_t Index = 0; bOk && Index < Articles.size(); ++Index)
	{
		const FStatement Insert = Prepare(Database.get(), "INSERT INTO Article (rowid, Title, Keywords, Text) VALUES (?, ?, ?, ?)");
		sqlite3_bind_int64(Insert.get(), 1, static_cast<sqlite3_int64>(Index));
		Bind(Insert, 2, Articles[Index].Title);
		Bind(Insert, 3, Articles[Index].Keywords);
		Bind(Insert, 4, Articles[Index].Text);
		bOk = sqlite3_step(Insert.get()) == SQLITE_DONE;
	}
	if (!bOk)
	{
		OutError = std::string("The built-in guide can't be indexed: ") + sqlite3_errmsg(Database.get()) + ".";
	}
	return bOk;
}

std::vector<std::int64_t> FGuide::Match(const std::string& Expression) const
{
	const FStatement Select =
		Prepare(Database.get(), "SELECT rowid FROM Article WHERE Article MATCH ? ORDER BY bm25(Article, 10.0, 6.0, 1.0)");
	Bind(Select, 1, Expression);
	std::vector<std::int64_t> Rows;
	while (sqlite3_step(Select.get()) == SQLITE_ROW)
	{
		Rows.push_back(sqlite3_column_int64(Select.get(), 0));
	}
	return Rows;
}

std::vector<const FGuideArticle*> FGuide::Find(const std::string& Question) const
{
	const std::vector<std::string> Words = GetQuestionWords(Question);
	const std::lock_guard<std::mutex> Lock(Mutex);
	std::set<std::int64_t> Subjects;
	std::map<std::int64_t, std::size_t> WordsHit;
	std::string AnyWord;
	for (const std::string& Word : Words)
	{
		AnyWord += (AnyWord.empty() ? "" : " OR ") + Quote(Word);
		const std::vector<std::int64_t> InSubject = Match("{Title Keywords} : " + Quote(Word));
		Subjects.insert(InSubject.begin(), InSubject.end());
		for (const std::int64_t Row : Match(Quote(Word)))
		{
			++WordsHit[Row];
		}
	}
	std::vector<const FGuideArticle*> Found;
	for (const std::int64_t Row : Words.empty() ? std::vector<std::int64_t>() : Match(AnyWord))
	{
		if (Subjects.count(Row) || WordsHit[Row] * 3 >= Words.size() * 2)
		{
			Found.push_back(&Articles[static_cast<std::size_t>(Row)]);
		}
	}
	return Found;
}
